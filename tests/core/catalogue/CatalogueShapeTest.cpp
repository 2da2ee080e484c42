#include "support/catalogue/AbilityRows.h"
#include "core/catalogue/BlockParsing.h"
#include "core/catalogue/Catalogue.h"
#include "support/catalogue/CatalogueRecords.h"

#include <gtest/gtest.h>

#include <set>

namespace tarnic {
namespace {

using test::abilityRows;

std::string rowLabel(std::size_t index) {
    const AbilityRecord& record = all_data().at(index);
    const std::string* name = optionalField(record, name_spell);
    return "row " + std::to_string(index + 1) + " (" + (name ? *name : "?") + ")";
}

TEST(Catalogue, HoldsOneHundredAndSixtyRecordsFromMoveToKaboom) {
    ASSERT_EQ(all_data().size(), 160u);
    EXPECT_EQ(all_data().front().at(name_spell), "Move");
    EXPECT_EQ(all_data().back().at(name_spell), "Kaboom");
}

TEST(Catalogue, IsBuiltOnceAndHandedOutAsTheSameObject) {
    EXPECT_EQ(&all_data(), &all_data());
    EXPECT_EQ(&move_(), &all_data().front());
}

TEST(Catalogue, ExactlyTheFirstSevenRecordsHaveNoOwner) {
    ASSERT_EQ(all_data().size(), 160u);
    for (std::size_t i = 0; i < all_data().size(); ++i) {
        SCOPED_TRACE(rowLabel(i));
        const std::string* parent = optionalField(all_data()[i], name_parent);
        if (i < 7) {
            EXPECT_EQ(parent, nullptr);
        } else {
            ASSERT_NE(parent, nullptr);
            EXPECT_FALSE(parent->empty());
        }
    }
}

TEST(Catalogue, EveryRecordHasTheSixKeysAndAnOwnerOnlyAsSeventh) {
    const std::set<std::string> six = {name_spell, def, for_edit, new_edit, def_hotkey, new_hotkey};
    for (std::size_t i = 0; i < all_data().size(); ++i) {
        SCOPED_TRACE(rowLabel(i));
        std::set<std::string> keys;
        for (const auto& [key, value] : all_data()[i]) {
            keys.insert(key);
        }
        std::set<std::string> expected = six;
        if (i >= 7) {
            expected.insert(name_parent);
        }
        EXPECT_EQ(keys, expected);
    }
}

TEST(Catalogue, NoHotkeyIsChosenYet) {
    for (std::size_t i = 0; i < all_data().size(); ++i) {
        SCOPED_TRACE(rowLabel(i));
        EXPECT_EQ(all_data()[i].at(new_hotkey), "");
        EXPECT_EQ(all_data()[i].at(new_edit), "");
    }
}

TEST(Catalogue, DefaultHotkeyIsOneUpperCaseLetter) {
    for (std::size_t i = 0; i < all_data().size(); ++i) {
        SCOPED_TRACE(rowLabel(i));
        const std::string& key = all_data()[i].at(def_hotkey);
        ASSERT_EQ(key.size(), 1u);
        EXPECT_TRUE(key[0] >= 'A' && key[0] <= 'Z');
    }
}

TEST(Catalogue, NamedConstantsAreTheRecordsOfTheirRows) {
    ASSERT_EQ(abilityRows().size(), 160u);
    ASSERT_EQ(all_data().size(), 160u);
    for (const auto& row : abilityRows()) {
        SCOPED_TRACE("row " + std::to_string(row.number));
        EXPECT_EQ(&row.record(), &all_data()[static_cast<std::size_t>(row.number - 1)]);
    }
}

TEST(Catalogue, NamesOwnersAndDefaultKeysFollowTheAbilityTable) {
    ASSERT_EQ(all_data().size(), 160u);
    for (const auto& row : abilityRows()) {
        SCOPED_TRACE("row " + std::to_string(row.number) + " (" + std::string(row.name) + ")");
        const AbilityRecord& record = all_data()[static_cast<std::size_t>(row.number - 1)];
        EXPECT_EQ(record.at(name_spell), row.name);
        const std::string* parent = optionalField(record, name_parent);
        if (row.parent) {
            ASSERT_NE(parent, nullptr);
            EXPECT_EQ(*parent, *row.parent);
        } else {
            EXPECT_EQ(parent, nullptr);
        }
        EXPECT_EQ(record.at(def_hotkey), row.defHotkey);
    }
}

TEST(Catalogue, BlocksHoldTheTableSectionsAndHotkeyLinesInOrder) {
    ASSERT_EQ(all_data().size(), 160u);
    for (const auto& row : abilityRows()) {
        SCOPED_TRACE("row " + std::to_string(row.number) + " (" + std::string(row.name) + ")");
        const AbilityRecord& record = all_data()[static_cast<std::size_t>(row.number - 1)];
        for (const char* key : {def, for_edit}) {
            if (&record == &berserk_() && std::string_view(key) == for_edit) {
                continue; // Berserk's template is Resurrection's entry
            }
            SCOPED_TRACE(key);
            const test::ParsedBlock block = test::parseBlock(record.at(key));
            EXPECT_TRUE(block.strayLines.empty());
            std::vector<std::string_view> ids;
            for (const auto& section : block.sections) {
                ids.emplace_back(section.id);
                std::vector<std::string_view> hotkeyLines;
                for (const std::string& line : section.lines) {
                    if (test::isHotkeyKey(test::lineKey(line))) {
                        hotkeyLines.push_back(test::lineKey(line));
                    }
                }
                EXPECT_EQ(hotkeyLines, row.hotkeyLines) << "section " << section.id;
            }
            EXPECT_EQ(ids, row.sections);
        }
    }
}

TEST(Catalogue, EverySectionHasATipAndOnlyKnownKeys) {
    for (std::size_t i = 0; i < all_data().size(); ++i) {
        SCOPED_TRACE(rowLabel(i));
        for (const auto& section : test::parseBlock(all_data()[i].at(def)).sections) {
            bool tip = false;
            for (const std::string& line : section.lines) {
                const std::string_view key = test::lineKey(line);
                EXPECT_TRUE(test::isTipKey(key) || test::isHotkeyKey(key)) << line;
                tip = tip || key == "Tip";
            }
            EXPECT_TRUE(tip) << "section " << section.id;
        }
    }
}

TEST(Catalogue, DisplayNamesRepeatOnlyForTheFiveSharedNames) {
    std::map<std::string, int> counts;
    for (const AbilityRecord& record : all_data()) {
        ++counts[record.at(name_spell)];
    }
    std::set<std::string> repeated;
    for (const auto& [name, count] : counts) {
        if (count > 1) {
            EXPECT_EQ(count, 2) << name;
            repeated.insert(name);
        }
    }
    EXPECT_EQ(repeated,
              (std::set<std::string>{"Burrow", "Taunt", "Wind Walk", "Cyclone", "Dispel Magic"}));
}

TEST(Catalogue, BlocksUseLineFeedsOnlyAndEndWithoutOne) {
    for (std::size_t i = 0; i < all_data().size(); ++i) {
        SCOPED_TRACE(rowLabel(i));
        for (const char* key : {def, for_edit}) {
            const std::string& text = all_data()[i].at(key);
            EXPECT_EQ(text.find('\r'), std::string::npos);
            EXPECT_FALSE(text.starts_with("\xEF\xBB\xBF"));
            ASSERT_FALSE(text.empty());
            EXPECT_NE(text.back(), '\n');
            EXPECT_EQ(text.find("\n\n"), std::string::npos);
        }
    }
}

} // namespace
} // namespace tarnic
