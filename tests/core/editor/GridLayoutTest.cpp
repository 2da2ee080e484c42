#include "core/editor/GridLayout.h"

#include "core/catalogue/Catalogue.h"
#include "core/editor/RecordFactory.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace tarnic {
namespace {

using test::generalCommands;
using test::makeRecord;

std::vector<AbilityRecord> withOwners(const std::vector<std::optional<std::string>>& owners) {
    auto list = generalCommands();
    int n = 0;
    for (const auto& owner : owners) {
        list.push_back(makeRecord("Ability " + std::to_string(n++), owner, "T"));
    }
    return list;
}

std::vector<std::string> keysFrom7(const std::vector<AbilityRecord>& list) {
    std::vector<std::string> keys;
    for (std::size_t i = 7; i < list.size(); ++i) {
        keys.push_back(list[i].at(new_hotkey));
    }
    return keys;
}

using Keys = std::vector<std::string>;

TEST(GridLayout, SevenRecordsAreLeftUnchanged) {
    auto list = generalCommands();
    fillTemplate(list[3], "Z");
    const auto before = list;
    allQWER(list);
    EXPECT_EQ(list, before);
}

TEST(GridLayout, FiveAbilitiesOfOneOwnerGetQWERQ) {
    auto list = withOwners({"Warden", "Warden", "Warden", "Warden", "Warden"});
    allQWER(list);
    EXPECT_EQ(keysFrom7(list), (Keys{"Q", "W", "E", "R", "Q"}));
}

TEST(GridLayout, RunsAreRunsInListOrderNotGroups) {
    auto list = withOwners({"A", "A", "B", "A"});
    allQWER(list);
    EXPECT_EQ(keysFrom7(list), (Keys{"Q", "W", "Q", "Q"}));
}

TEST(GridLayout, EmptyOwnerAtIndexSevenContinuesTheInitialRun) {
    auto list = withOwners({"", "", "X"});
    allQWER(list);
    EXPECT_EQ(keysFrom7(list), (Keys{"W", "E", "Q"}));
}

TEST(GridLayout, MissingOwnersEqualEachOtherButNeverAPresentOne) {
    auto list = withOwners({std::nullopt, std::nullopt, "", std::nullopt});
    allQWER(list);
    EXPECT_EQ(keysFrom7(list), (Keys{"Q", "W", "Q", "Q"}));
}

TEST(GridLayout, OwnersCompareCaseSensitively) {
    auto list = withOwners({"Priest", "priest", "priest"});
    allQWER(list);
    EXPECT_EQ(keysFrom7(list), (Keys{"Q", "Q", "W"}));
}

TEST(GridLayout, EditIsTheTemplateFilledWithTheLetter) {
    auto list = withOwners({"P", "P", "P", "P"});
    allQWER(list);
    for (std::size_t i = 7; i < list.size(); ++i) {
        const std::string& key = list[i].at(new_hotkey);
        EXPECT_EQ(list[i].at(new_edit), replaceAll(list[i].at(for_edit), mark, key));
        EXPECT_EQ(list[i].at(new_edit).find(mark), std::string::npos);
    }
}

TEST(GridLayout, HandSetKeyOnAGeneralCommandSurvivesAndOnAnAbilityIsReplaced) {
    auto list = withOwners({"Priest", "Priest"});
    fillTemplate(list[0], "Z");
    fillTemplate(list[8], "Z");
    allQWER(list);
    EXPECT_EQ(list[0].at(new_hotkey), "Z");
    EXPECT_EQ(list[8].at(new_hotkey), "W");
    EXPECT_EQ(list[1].at(new_hotkey), "");
    EXPECT_EQ(list[1].at(new_edit), "");
}

TEST(GridLayout, TheTestIsOnThePositionNotOnTheRecord) {
    auto list = withOwners({"A"});
    // An owned ability inside the first seven is left alone; a general command from index 7 on
    // is laid out.
    list[2] = makeRecord("Owned", "A", "O");
    list[7] = makeRecord("Command", std::nullopt, "C");
    allQWER(list);
    EXPECT_EQ(list[2].at(new_hotkey), "");
    EXPECT_EQ(list[7].at(new_hotkey), "Q");
}

TEST(GridLayout, RunningTwiceGivesTheSameList) {
    auto list = withOwners({"A", "A", "B", "B", "B", "B", "B", "C"});
    allQWER(list);
    const auto once = list;
    allQWER(list);
    EXPECT_EQ(list, once);
}

TEST(GridLayout, ShortListsAreFine) {
    std::vector<AbilityRecord> none;
    allQWER(none);
    EXPECT_TRUE(none.empty());
    auto three = generalCommands();
    three.resize(3);
    const auto before = three;
    allQWER(three);
    EXPECT_EQ(three, before);
}

// The rule over the shipped catalogue, with expectations worked out from the records' owners.
TEST(GridLayout, CatalogueFollowsTheRunRule) {
    auto list = all_data();
    allQWER(list);
    ASSERT_EQ(list.size(), all_data().size());
    const char* letters[] = {"Q", "W", "E", "R"};
    std::optional<std::string> previous = std::string();
    int run = 0;
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (i < 7) {
            EXPECT_EQ(list[i], all_data()[i]);
            continue;
        }
        const auto it = list[i].find(name_parent);
        std::optional<std::string> owner =
            it == list[i].end() ? std::nullopt : std::optional<std::string>(it->second);
        run = owner == previous ? run + 1 : 0;
        previous = owner;
        const std::string expected = run < 4 ? letters[run] : "Q";
        EXPECT_EQ(list[i].at(new_hotkey), expected) << "record " << i;
        EXPECT_EQ(list[i].at(new_edit), replaceAll(list[i].at(for_edit), mark, expected));
    }
}

TEST(GridLayoutDeathTest, AbilityWithoutTemplateEndsTheProgram) {
    auto list = withOwners({"A"});
    list[7].erase(for_edit);
    EXPECT_DEATH(allQWER(list), "Unexpectedly found nil while unwrapping an Optional value");
}

} // namespace
} // namespace tarnic
