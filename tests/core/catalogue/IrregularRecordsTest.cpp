#include "core/catalogue/BlockParsing.h"
#include "core/catalogue/Catalogue.h"
#include "core/catalogue/HotkeyMarking.h"
#include "support/catalogue/CatalogueRecords.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

using test::countOf;

AbilityRecord filled(const AbilityRecord& record, std::string_view key) {
    AbilityRecord copy = record;
    fillTemplate(copy, key);
    return copy;
}

std::vector<std::string> linesOfSection(std::string_view block, std::string_view id) {
    for (const auto& section : test::parseBlock(block).sections) {
        if (section.id == id) {
            return section.lines;
        }
    }
    return {};
}

std::vector<std::string> hotkeyLinesOfSection(std::string_view block, std::string_view id) {
    std::vector<std::string> lines;
    for (const std::string& line : linesOfSection(block, id)) {
        if (test::isHotkeyKey(test::lineKey(line))) {
            lines.push_back(line);
        }
    }
    return lines;
}

const std::vector<std::string> cAndW = {"Hotkey=C", "Unhotkey=W"};
const std::vector<std::string> qAndQ = {"Hotkey=Q", "Unhotkey=Q"};

TEST(IrregularRecords, CallToArmsSwitchesOffWithWAndAChosenKeyReplacesBoth) {
    const AbilityRecord& record = calltoArms_();
    for (const char* id : {"Amil", "Amic"}) {
        SCOPED_TRACE(id);
        EXPECT_EQ(hotkeyLinesOfSection(record.at(def), id), cAndW);
        const auto lines = linesOfSection(record.at(def), id);
        EXPECT_NE(std::find(lines.begin(), lines.end(), "Untip=Back to |cffffcc00W|rork"),
                  lines.end());
        EXPECT_EQ(hotkeyLinesOfSection(filled(record, "Q").at(new_edit), id), qAndQ);
    }
    EXPECT_EQ(countOf(record.at(for_edit), mark), 4u);
    EXPECT_EQ(record.at(for_edit), catalogue::markHotkeyValues(record.at(def)));
    const std::string edited = filled(record, "Q").at(new_edit);
    EXPECT_EQ(countOf(edited, "Hotkey=Q"), 2u);
    EXPECT_EQ(countOf(edited, "Unhotkey=Q"), 2u);
    EXPECT_EQ(countOf(edited, "=C\n"), 0u);
    EXPECT_EQ(countOf(edited, "=W\n"), 0u);
}

constexpr std::string_view resurrectionDefault = R"(// Resurrection
[AHre]
Tip=|cffffcc00R|resurrectionHotkey=R
Researchtip=Learn |cffffcc00R|resurrection
Researchhotkey=R)";

TEST(IrregularRecords, ResurrectionJoinsTipAndHotkeyAndHasTwoMarkers) {
    const AbilityRecord& record = resurrection_();
    EXPECT_EQ(record.at(def), resurrectionDefault);
    EXPECT_EQ(countOf(record.at(for_edit), mark), 2u);
    EXPECT_NE(
        record.at(for_edit).find(std::string("Tip=|cffffcc00R|resurrectionHotkey=") + mark + "\n"),
        std::string::npos);
    EXPECT_EQ(replaceAll(record.at(for_edit), mark, "R"), record.at(def));
    EXPECT_EQ(hotkeyLinesOfSection(record.at(def), "AHre"),
              std::vector<std::string>{"Researchhotkey=R"});
}

TEST(IrregularRecords, BerserkChosenKeyWritesTheResurrectionEntry) {
    const AbilityRecord& record = berserk_();
    EXPECT_EQ(record.at(def), "// Berserk\n[Absk]\nTip=\"|cffffcc00B|rerserk\"\nHotkey=B");
    EXPECT_EQ(record.at(for_edit), resurrection_().at(for_edit));
    EXPECT_EQ(filled(record, "Q").at(new_edit), replaceAll(resurrectionDefault, "=R", "=Q"));
    EXPECT_EQ(filled(record, "Q").at(new_edit), R"(// Resurrection
[AHre]
Tip=|cffffcc00R|resurrectionHotkey=Q
Researchtip=Learn |cffffcc00R|resurrection
Researchhotkey=Q)");
}

// The default key shown and the key the default entry holds differ for these two; a reset
// copies the catalogue back, so both stay as they are.
TEST(IrregularRecords, EnsnareAndCargoLoadShowAnotherDefaultKeyThanTheirEntry) {
    struct Case {
        const AbilityRecord& record;
        const char* shown;
        const char* held;
    };
    for (const Case& c : {Case{ensnare_(), "T", "Hotkey=E"}, Case{cargoload_(), "V", "Hotkey=L"}}) {
        SCOPED_TRACE(c.record.at(name_spell));
        std::vector<AbilityRecord> working = all_data();
        for (AbilityRecord& record : working) {
            fillTemplate(record, "Q");
        }
        working = all_data(); // reset
        const auto& reset = working[static_cast<std::size_t>(&c.record - all_data().data())];
        EXPECT_EQ(reset.at(def_hotkey), c.shown);
        EXPECT_EQ(reset.at(new_hotkey), "");
        EXPECT_EQ(reset.at(new_edit), "");
        EXPECT_EQ(hotkeyLinesOfSection(reset.at(def),
                                       c.record.at(name_spell) == "Ensnare" ? "Aens" : "Aloa"),
                  std::vector<std::string>{c.held});
        EXPECT_EQ(reset.at(for_edit), catalogue::markHotkeyValues(reset.at(def)));
    }
}

TEST(IrregularRecords, MirrorImageHoldsTheWindWalkTexts) {
    EXPECT_EQ(mirror_image_().at(def), wind_walk_().at(def));
    EXPECT_EQ(mirror_image_().at(for_edit), wind_walk_().at(for_edit));
    EXPECT_EQ(mirror_image_().at(def_hotkey), "R");
    EXPECT_EQ(hotkeyLinesOfSection(mirror_image_().at(def), "AOwk"),
              (std::vector<std::string>{"Hotkey=W", "Researchhotkey=W"}));
}

TEST(IrregularRecords, FrostArrowsAndBlackArrowJoinSwitchOffTipAndHotkey) {
    const std::string tip = "Untip=\"|cffc3dbffRight-click to activate auto-casting.|r\"";
    struct Case {
        const AbilityRecord& record;
        const char* key;
        std::size_t markers;
    };
    for (const Case& c : {Case{frostarrows_(), "R", 3}, Case{blackarrow_(), "B", 2}}) {
        SCOPED_TRACE(c.record.at(name_spell));
        EXPECT_NE(c.record.at(def).find("\n" + tip + "Hotkey=" + c.key + "\n"), std::string::npos);
        EXPECT_NE(c.record.at(for_edit).find("\n" + tip + "Hotkey=" + mark + "\n"),
                  std::string::npos);
        EXPECT_EQ(countOf(c.record.at(for_edit), mark), c.markers);
        EXPECT_EQ(replaceAll(c.record.at(for_edit), mark, c.key), c.record.at(def));
        EXPECT_EQ(countOf(c.record.at(def), "\nHotkey="), 0u);
    }
}

TEST(IrregularRecords, RoboGoblinKeepsItsRevertKeyT) {
    const AbilityRecord& record = robogoblin_();
    EXPECT_EQ(countOf(record.at(for_edit), mark), 8u);
    EXPECT_EQ(countOf(record.at(def), "Unhotkey=T"), 4u);
    EXPECT_EQ(countOf(record.at(for_edit), "Unhotkey=T"), 4u);
    EXPECT_EQ(replaceAll(record.at(for_edit), mark, "B"), record.at(def));
    const std::string edited = filled(record, "Q").at(new_edit);
    EXPECT_EQ(countOf(edited, "Unhotkey=T"), 4u);
    EXPECT_EQ(countOf(edited, "\nHotkey=Q"), 4u);
    EXPECT_EQ(countOf(edited, "\nResearchhotkey=Q"), 4u);
    for (const char* id : {"ANg1", "ANg2", "ANg3", "ANrg"}) {
        SCOPED_TRACE(id);
        EXPECT_EQ(linesOfSection(record.at(def), id).at(0),
                  std::string(id) == "ANg2" ? "Tip=\"Ro|cffffcc00b|roGoblin\""
                                            : "Tip=\"Ro|cffffcc00b|ro-Goblin\"");
    }
}

TEST(IrregularRecords, KaboomCommentHasThreeSlashesOnlyInTheDefault) {
    EXPECT_TRUE(kaboom_().at(def).starts_with("///Kaboom\n[Asdg]\n"));
    EXPECT_TRUE(kaboom_().at(for_edit).starts_with("//Kaboom\n[Asdg]\n"));
    EXPECT_EQ(countOf(kaboom_().at(def), "//"), 1u);
    EXPECT_TRUE(filled(kaboom_(), "B").at(new_edit).starts_with("//Kaboom\n"));
    EXPECT_EQ(filled(kaboom_(), "B").at(new_edit), kaboom_().at(def).substr(1));
    int threeSlashes = 0;
    for (const AbilityRecord& record : all_data()) {
        threeSlashes += record.at(def).find("///") != std::string::npos ? 1 : 0;
    }
    EXPECT_EQ(threeSlashes, 1);
}

TEST(IrregularRecords, RepairRestoreTipLacksItsClosingColourCode) {
    const auto lines = linesOfSection(repair_().at(def), "Arst");
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines[1], "Untip=\"|cffc3dbffRight-click to activate auto-casting.\"");
    EXPECT_EQ(linesOfSection(repair_().at(def), "Arep").at(1),
              "Untip=\"|cffc3dbffRight-click to activate auto-casting.|r\"");
}

TEST(IrregularRecords, CommentsKeepTheirOddSpelling) {
    for (const char* key : {def, for_edit}) {
        EXPECT_TRUE(summonlavaspawn_().at(key).starts_with("// Summmon Lava Spawn\n[ANlm]\n"));
        EXPECT_TRUE(lifedrain_().at(key).starts_with("// Life Drain  (Dark Ranger)\n[ANdr]\n"));
    }
}

TEST(IrregularRecords, DestroyerAndSearingArrowsUseTheirOddIdentifiers) {
    EXPECT_NE(destroyer_().at(def).find("\n[ubsp]\n"), std::string::npos);
    EXPECT_NE(searing_arrows_().at(def).find("\n[AHfa]\n"), std::string::npos);
}

TEST(IrregularRecords, ExactlyFourteenBlocksOpenWithAnEmptyLine) {
    const std::vector<int> expected = {7, 8, 63, 75, 76, 78, 79, 80, 93, 94, 113, 142, 158, 159};
    std::vector<int> opening;
    for (std::size_t i = 0; i < all_data().size(); ++i) {
        const AbilityRecord& record = all_data()[i];
        SCOPED_TRACE(record.at(name_spell));
        const bool empty = record.at(def).starts_with("\n");
        EXPECT_EQ(record.at(for_edit).starts_with("\n"), empty);
        if (empty) {
            opening.push_back(static_cast<int>(i + 1));
            // No comment anywhere in such a block: it opens straight into its first header.
            EXPECT_EQ(record.at(def)[1], '[');
            EXPECT_EQ(countOf(record.at(def), "//"), 0u);
            EXPECT_EQ(countOf(record.at(for_edit), "//"), 0u);
        } else {
            EXPECT_TRUE(record.at(def).starts_with("//"));
        }
    }
    EXPECT_EQ(opening, expected);
}

} // namespace
} // namespace tarnic
