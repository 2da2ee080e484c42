#include "core/editor/ClashRule.h"

#include "core/catalogue/CatalogueRecords.h"
#include "core/editor/GridLayout.h"
#include "core/editor/KeyAssignment.h"
#include "core/editor/RecordFactory.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace tarnic {
namespace {

using testing::generalCommands;
using testing::makeRecord;

// The record with the given key chosen by the player.
AbilityRecord chosen(AbilityRecord record, const std::string& key) {
    assignKey(record, key);
    return record;
}

// The seven owner-less records (Move M, Attack A, Stop S, Hold H, Patrol P, Attack Ground G,
// Repair R), then the given abilities.
std::vector<AbilityRecord> listWith(const std::vector<AbilityRecord>& abilities) {
    auto list = generalCommands();
    list.insert(list.end(), abilities.begin(), abilities.end());
    return list;
}

TEST(KeyInForce, IsTheChoiceElseTheDefaultKey) {
    auto record = makeRecord("Heal", "Priest", "E");
    EXPECT_EQ(keyInForce(record), "E");
    assignKey(record, "Q");
    EXPECT_EQ(keyInForce(record), "Q");
    record[new_hotkey] = "";
    EXPECT_EQ(keyInForce(record), "E");
}

TEST(KeyInForce, AbsentFieldsGiveNoKey) {
    AbilityRecord record{{name_spell, "Broken"}};
    EXPECT_EQ(keyInForce(record), "");
    record[new_hotkey] = "K";
    EXPECT_EQ(keyInForce(record), "K");
}

TEST(KeyIsChosen, OnlyAKeyThePlayerChose) {
    auto record = makeRecord("Heal", "Priest", "E");
    EXPECT_FALSE(keyIsChosen(record));
    // His own choice of the default letter is a choice all the same.
    assignKey(record, "E");
    EXPECT_TRUE(keyIsChosen(record));
    record[new_hotkey] = "";
    EXPECT_FALSE(keyIsChosen(record));
    record.erase(new_hotkey);
    EXPECT_FALSE(keyIsChosen(record));
}

TEST(ClashRule, TwoAbilitiesOfOneOwnerOnOneKeyAreOneClash) {
    const auto list = listWith({makeRecord("Heal", "Priest", "E"),
                                chosen(makeRecord("Inner Fire", "Priest", "F"), "E"),
                                makeRecord("Dispel", "Priest", "D")});
    EXPECT_EQ(findClashes(list), (std::vector<Clash>{{7, 8}}));
}

TEST(ClashRule, TwoDefaultKeysNeverClash) {
    const auto list =
        listWith({makeRecord("Heal", "Priest", "E"), makeRecord("Inner Fire", "Priest", "E")});
    EXPECT_TRUE(findClashes(list).empty());
}

TEST(ClashRule, TwoChosenKeysClash) {
    const auto list = listWith({chosen(makeRecord("Heal", "Priest", "E"), "Q"),
                                chosen(makeRecord("Inner Fire", "Priest", "F"), "Q")});
    EXPECT_EQ(findClashes(list), (std::vector<Clash>{{7, 8}}));
}

TEST(ClashRule, AbilitiesOfDifferentOwnersDoNotClash) {
    const auto list = listWith({chosen(makeRecord("Heal", "Priest", "E"), "E"),
                                chosen(makeRecord("Slow", "Sorceress", "W"), "E")});
    EXPECT_TRUE(findClashes(list).empty());
}

TEST(ClashRule, AnOwnersAbilityClashesWithAGeneralCommandOnItsKey) {
    // Attack Ground is G; the player puts this ability on G too.
    const auto list = listWith({chosen(makeRecord("Purge", "Shaman", "U"), "G")});
    EXPECT_EQ(findClashes(list), (std::vector<Clash>{{5, 7}}));
}

TEST(ClashRule, AGeneralCommandsDefaultKeyAndAnAbilitysDefaultKeyDoNotClash) {
    // Both on G, as the game ships them.
    const auto list = listWith({makeRecord("Purge", "Shaman", "G")});
    EXPECT_TRUE(findClashes(list).empty());
}

TEST(ClashRule, AGeneralCommandMovedOntoAnAbilitysDefaultKeyClashes) {
    auto list = listWith({makeRecord("Purge", "Shaman", "U")});
    assignKey(list[5], "U"); // Attack Ground
    EXPECT_EQ(findClashes(list), (std::vector<Clash>{{5, 7}}));
}

TEST(ClashRule, RepairIsNotAGeneralCommand) {
    // Repair (position 6) is R; an owner's ability on R does not clash with it.
    const auto list = listWith({chosen(makeRecord("Reveal", "Tower", "V"), "R")});
    EXPECT_TRUE(findClashes(list).empty());
}

TEST(ClashRule, TwoGeneralCommandsOnOneKeyClash) {
    auto list = generalCommands();
    assignKey(list[1], "M"); // Attack on Move's key
    EXPECT_EQ(findClashes(list), (std::vector<Clash>{{0, 1}}));
}

TEST(ClashRule, AGeneralCommandAndRepairDoNotClash) {
    auto list = generalCommands();
    assignKey(list[0], "R"); // Move on Repair's key
    EXPECT_TRUE(findClashes(list).empty());
}

TEST(ClashRule, OwnerlessRecordsAmongTheFirstSixOnlyByTheirPlace) {
    // An owner-less ability further down the list is no general command.
    const auto list = listWith({chosen(makeRecord("Loose", std::nullopt, "L"), "M")});
    EXPECT_TRUE(findClashes(list).empty());
}

TEST(ClashRule, TheChosenKeyCountsNotTheDefaultKey) {
    auto list = listWith({makeRecord("Heal", "Priest", "E"), makeRecord("Slow", "Priest", "W")});
    EXPECT_TRUE(findClashes(list).empty());
    assignKey(list[8], "E");
    EXPECT_EQ(findClashes(list), (std::vector<Clash>{{7, 8}}));
    assignKey(list[7], "Q");
    EXPECT_TRUE(findClashes(list).empty());
}

TEST(ClashRule, ThreeAbilitiesOnOneKeyAreThreeClashesInListOrder) {
    // The player's T on the first; the others keep their own T.
    const auto list =
        listWith({chosen(makeRecord("A1", "Hero", "B"), "T"), makeRecord("A2", "Hero", "T"),
                  makeRecord("Other", "Unit", "T"), chosen(makeRecord("A3", "Hero", "C"), "T")});
    EXPECT_EQ(findClashes(list), (std::vector<Clash>{{7, 8}, {7, 10}, {8, 10}}));
}

TEST(ClashRule, AnOwnerWrittenEmptyIsAnOwnerOfItsOwn) {
    const auto list = listWith(
        {chosen(makeRecord("X", std::string(), "Q"), "Q"), makeRecord("Y", std::string(), "Q")});
    EXPECT_EQ(findClashes(list), (std::vector<Clash>{{7, 8}}));
}

TEST(ClashRule, TheUntouchedCatalogueHasNoClash) {
    // The game's own keys put Attack Ground, Purge and Gold Mine on G; none of them was chosen.
    const auto& list = all_data();
    EXPECT_TRUE(findClashes(list).empty());
}

TEST(ClashRule, TheGamesOwnKeyChosenByHandClashesWithTheOthersOnIt) {
    // The player gives Purge G, its default letter: now it is his key, and it meets Attack
    // Ground's G. Gold Mine keeps the game's G and still clashes with nothing.
    auto list = all_data();
    std::size_t purge = list.size();
    std::size_t attackGround = list.size();
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (list[i] == purge_()) {
            purge = i;
        }
        if (list[i] == attack_ground_()) {
            attackGround = i;
        }
    }
    ASSERT_LT(purge, list.size());
    ASSERT_LT(attackGround, list.size());
    assignKey(list[purge], "G");
    EXPECT_EQ(findClashes(list), (std::vector<Clash>{{attackGround, purge}}));
}

TEST(ClashRule, TheGridLayoutOfTheCatalogueHasNoClash) {
    // No owner has more than four abilities, and the general commands keep M A S H P G.
    auto list = all_data();
    allQWER(list);
    EXPECT_TRUE(findClashes(list).empty());
}

TEST(ClashRule, AFifthAbilityLaidOutOnQClashesWithTheFirst) {
    std::vector<AbilityRecord> abilities;
    for (int i = 0; i < 5; ++i) {
        abilities.push_back(makeRecord("A" + std::to_string(i), "Hero", "Z"));
    }
    auto list = listWith(abilities);
    allQWER(list);
    EXPECT_EQ(findClashes(list), (std::vector<Clash>{{7, 11}}));
}

TEST(ClashPartners, NamesEveryOtherSideInListOrder) {
    const std::vector<Clash> clashes = {{1, 4}, {1, 2}, {2, 4}};
    const auto partners = clashPartners(clashes, 6);
    ASSERT_EQ(partners.size(), 6u);
    EXPECT_EQ(partners[1], (std::vector<std::size_t>{2, 4}));
    EXPECT_EQ(partners[2], (std::vector<std::size_t>{1, 4}));
    EXPECT_EQ(partners[4], (std::vector<std::size_t>{1, 2}));
    EXPECT_TRUE(partners[0].empty());
    EXPECT_TRUE(partners[3].empty());
}

TEST(ClashPartners, PositionsOutsideTheListAreLeftOut) {
    const auto partners = clashPartners({{1, 9}}, 3);
    ASSERT_EQ(partners.size(), 3u);
    EXPECT_TRUE(partners[1].empty());
}

} // namespace
} // namespace tarnic
