#include "core/catalogue/BlockParsing.h"
#include "core/catalogue/Catalogue.h"
#include "core/catalogue/HotkeyMarking.h"
#include "support/catalogue/CatalogueRecords.h"

#include <gtest/gtest.h>

#include <set>

namespace tarnic {
namespace {

using catalogue::markHotkeyValues;
using test::countOf;

// The records whose deviations from the template rules are kept on purpose.
const std::set<const AbilityRecord*>& irregularRecords() {
    static const std::set<const AbilityRecord*> records = {
        &calltoArms_(),  &resurrection_(), &berserk_(),    &ensnare_(),   &mirror_image_(),
        &frostarrows_(), &blackarrow_(),   &robogoblin_(), &cargoload_(), &kaboom_(),
    };
    return records;
}

std::string label(const AbilityRecord& record) {
    return record.at(name_spell) + " / " +
           (optionalField(record, name_parent) ? record.at(name_parent) : "");
}

// Hotkey lines of a block, each as its whole line.
std::vector<std::string> hotkeyLinesOf(std::string_view block) {
    std::vector<std::string> lines;
    for (const std::string& line : test::splitLines(block)) {
        if (test::isHotkeyKey(test::lineKey(line))) {
            lines.push_back(line);
        }
    }
    return lines;
}

// Which template rules a record keeps; a regular record keeps all of them.
struct RuleCheck {
    bool templateIsMarkedDefault;
    bool hotkeysAreDefaultKey;
    bool markerPerHotkeyLine;
    bool defaultWithoutMarker;
};

RuleCheck check(const AbilityRecord& record) {
    const std::string& text = record.at(def);
    const std::string& edit = record.at(for_edit);
    const std::string& key = record.at(def_hotkey);
    bool hotkeysAreKey = true;
    std::size_t castLines = 0;
    for (const std::string& line : hotkeyLinesOf(text)) {
        hotkeysAreKey = hotkeysAreKey && line.substr(line.find('=') + 1) == key;
        castLines += line.starts_with("Hotkey=") ? 1 : 0;
    }
    // A hotkey that does not begin its line is not one the rule can mark.
    hotkeysAreKey = hotkeysAreKey && countOf(text, "Hotkey=") == castLines;
    return {edit == markHotkeyValues(text), hotkeysAreKey,
            countOf(edit, mark) == hotkeyLinesOf(text).size(), countOf(text, mark) == 0};
}

TEST(RecordInvariants, RegularRecordsKeepEveryTemplateRule) {
    ASSERT_EQ(all_data().size(), 160u);
    int regular = 0;
    for (const AbilityRecord& record : all_data()) {
        if (irregularRecords().contains(&record)) {
            continue;
        }
        ++regular;
        SCOPED_TRACE(label(record));
        const RuleCheck rules = check(record);
        EXPECT_TRUE(rules.templateIsMarkedDefault);
        EXPECT_TRUE(rules.hotkeysAreDefaultKey);
        EXPECT_TRUE(rules.markerPerHotkeyLine);
        EXPECT_TRUE(rules.defaultWithoutMarker);
        EXPECT_GE(countOf(record.at(for_edit), mark), 1u);
    }
    EXPECT_EQ(regular, 150);
}

TEST(RecordInvariants, EachIrregularRecordBreaksARule) {
    for (const AbilityRecord* record : irregularRecords()) {
        SCOPED_TRACE(label(*record));
        const RuleCheck rules = check(*record);
        EXPECT_FALSE(rules.templateIsMarkedDefault && rules.hotkeysAreDefaultKey &&
                     rules.markerPerHotkeyLine && rules.defaultWithoutMarker);
        EXPECT_TRUE(rules.defaultWithoutMarker);
    }
}

TEST(RecordInvariants, NoDefaultTextHoldsTheMarkerOrALoneCheckMark) {
    const std::string checkMark = "\xE2\x9C\x94";
    for (const AbilityRecord& record : all_data()) {
        SCOPED_TRACE(label(record));
        EXPECT_EQ(countOf(record.at(def), checkMark), 0u);
        // In the template every check mark is the whole marker.
        EXPECT_EQ(countOf(record.at(for_edit), checkMark), countOf(record.at(for_edit), mark));
    }
}

TEST(RecordInvariants, ChoosingQPutsQAtEveryHotkeyOfEverySectionAndNowhereElse) {
    for (const AbilityRecord& original : all_data()) {
        if (irregularRecords().contains(&original)) {
            continue;
        }
        SCOPED_TRACE(label(original));
        AbilityRecord record = original;
        fillTemplate(record, "Q");
        EXPECT_EQ(record.at(new_hotkey), "Q");
        EXPECT_EQ(record.at(new_edit), replaceAll(markHotkeyValues(original.at(def)), mark, "Q"));
        EXPECT_EQ(countOf(record.at(new_edit), mark), 0u);
    }
}

TEST(RecordInvariants, MultiSectionTemplateFilledWithQ) {
    AbilityRecord record = clusterrockets_();
    fillTemplate(record, "Q");
    const test::ParsedBlock block = test::parseBlock(record.at(new_edit));
    ASSERT_EQ(block.sections.size(), 4u);
    for (const auto& section : block.sections) {
        SCOPED_TRACE(section.id);
        std::vector<std::string> hotkeys;
        for (const std::string& line : section.lines) {
            if (test::isHotkeyKey(test::lineKey(line))) {
                hotkeys.push_back(line);
            }
        }
        EXPECT_EQ(hotkeys, (std::vector<std::string>{"Hotkey=Q", "Researchhotkey=Q"}));
    }
    // Only the hotkey values changed: the tips keep their R.
    EXPECT_EQ(countOf(record.at(new_edit), "|cffffcc00R|rockets"),
              countOf(clusterrockets_().at(def), "|cffffcc00R|rockets"));
}

TEST(RecordInvariants, ResearchTipPlaceholderSurvivesEveryFill) {
    int withPlaceholder = 0;
    for (const AbilityRecord& original : all_data()) {
        const std::size_t placeholders = countOf(original.at(def), "%d");
        if (placeholders == 0) {
            continue;
        }
        ++withPlaceholder;
        SCOPED_TRACE(label(original));
        EXPECT_EQ(countOf(original.at(for_edit), "%d"), placeholders);
        for (char key = 'A'; key <= 'Z'; ++key) {
            AbilityRecord record = original;
            fillTemplate(record, std::string(1, key));
            EXPECT_EQ(countOf(record.at(new_edit), "%d"), placeholders);
            EXPECT_EQ(countOf(record.at(new_edit), "[|cffffcc00Level %d|r]"),
                      countOf(original.at(def), "[|cffffcc00Level %d|r]"));
        }
    }
    EXPECT_GT(withPlaceholder, 50);
}

TEST(RecordInvariants, MoveHasNoOwnerAndIsReadWithoutFailure) {
    EXPECT_EQ(optionalField(move_(), name_parent), nullptr);
    EXPECT_EQ(move_().count(name_parent), 0u);
    EXPECT_EQ(requiredField(move_(), name_spell), "Move");
}

TEST(RecordInvariants, FillingATemplateWithoutMarkerLeavesItUnchanged) {
    AbilityRecord record = defend_();
    record[for_edit] = record.at(def);
    fillTemplate(record, "Q");
    EXPECT_EQ(record.at(new_edit), defend_().at(def));
}

TEST(RecordInvariants, ALoneCheckMarkIsNotTheMarker) {
    AbilityRecord record = defend_();
    record[for_edit] = replaceAll(record.at(for_edit), mark, "\xE2\x9C\x94");
    fillTemplate(record, "Q");
    EXPECT_EQ(countOf(record.at(new_edit), "Q"), 0u);
    EXPECT_EQ(countOf(record.at(new_edit), "\xE2\x9C\x94"), 2u);
}

TEST(RecordInvariants, TheCatalogueIsNotChangedByFillingACopy) {
    const std::string before = all_data()[8].at(for_edit);
    std::vector<AbilityRecord> working = all_data();
    for (AbilityRecord& record : working) {
        fillTemplate(record, "Z");
    }
    EXPECT_EQ(all_data()[8].at(for_edit), before);
    EXPECT_EQ(all_data()[8].at(new_edit), "");
    EXPECT_EQ(all_data()[8].at(new_hotkey), "");
}

} // namespace
} // namespace tarnic
