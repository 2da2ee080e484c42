#include "core/editor/ExportText.h"

#include "core/catalogue/Catalogue.h"
#include "core/editor/RecordFactory.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnic {
namespace {

using test::generalCommands;
using test::makeRecord;

// The expected block list, built here from the records' own fields.
std::string expectedBlocks(const std::vector<AbilityRecord>& list) {
    std::string text;
    for (const AbilityRecord& r : list) {
        text += "\n" + (r.at(new_edit).empty() ? r.at(def) : r.at(new_edit));
    }
    return text;
}

TEST(ExportText, UntouchedListWritesEveryDefaultBlockAfterALineFeed) {
    const auto list = generalCommands();
    const std::string text = exportText(list, std::string("head\n") + mark + "\ntail\n");
    std::string expected = "head\n";
    for (const auto& r : list) {
        expected += "\n" + r.at(def);
    }
    expected += "\ntail\n";
    EXPECT_EQ(text, expected);
}

TEST(ExportText, UntouchedCatalogueWritesItsDefaultBlocksInOrder) {
    const auto& list = all_data();
    std::string expected;
    for (const auto& r : list) {
        expected += "\n" + r.at(def);
    }
    EXPECT_EQ(exportText(list, mark), expected);
}

TEST(ExportText, SetRecordWritesItsEditedBlockAndLeavesTheOthers) {
    auto list = generalCommands();
    fillTemplate(list[2], "Z");
    const std::string text = exportText(list, mark);
    EXPECT_EQ(text, expectedBlocks(list));
    EXPECT_NE(text.find("\n// Stop\n[Cmd2]\nTip=Stop\nHotkey=Z\nResearchhotkey=Z\n"),
              std::string::npos);
    EXPECT_NE(text.find("\n" + list[3].at(def)), std::string::npos);
}

TEST(ExportText, ResetRecordWritesItsDefaultBlockAgain) {
    auto list = generalCommands();
    const std::string untouched = exportText(list, mark);
    fillTemplate(list[0], "Q");
    ASSERT_NE(exportText(list, mark), untouched);
    list[0][new_edit] = "";
    list[0][new_hotkey] = "";
    EXPECT_EQ(exportText(list, mark), untouched);
}

TEST(ExportText, TemplateWithTwoMarkersHoldsTheBlockListTwice) {
    const auto list = generalCommands();
    const std::string blocks = blockList(list);
    EXPECT_EQ(exportText(list, std::string("A") + mark + "B" + mark + "C"),
              "A" + blocks + "B" + blocks + "C");
}

TEST(ExportText, LoneCheckMarkInTheTemplateIsCopiedUnchanged) {
    const auto list = generalCommands();
    const std::string lone = "\xE2\x9C\x94";
    EXPECT_EQ(exportText(list, lone + "\r\n" + mark + "\r\n"),
              lone + "\r\n" + blockList(list) + "\r\n");
}

TEST(ExportText, TemplateWithoutMarkerIsTheWholeFile) {
    EXPECT_EQ(exportText(generalCommands(), "// nothing here\r\n"), "// nothing here\r\n");
}

TEST(ExportText, EmptyTemplateGivesEmptyFile) {
    EXPECT_EQ(exportText(generalCommands(), ""), "");
}

TEST(ExportText, EmptyListRemovesTheMarkers) {
    EXPECT_EQ(exportText({}, std::string("a") + mark + "b" + mark), "ab");
}

TEST(ExportText, NoTrailingLineFeedAfterTheLastBlock) {
    const auto list = generalCommands();
    const std::string blocks = blockList(list);
    ASSERT_FALSE(blocks.empty());
    EXPECT_EQ(blocks.substr(blocks.size() - list.back().at(def).size()), list.back().at(def));
}

TEST(ExportText, ResearchPlaceholderSurvives) {
    auto record = makeRecord("Heal", "Priest", "H");
    record[def] += "\nResearchtip=[|cffffcc00Level %d|r]";
    record[for_edit] += "\nResearchtip=[|cffffcc00Level %d|r]";
    fillTemplate(record, "Q");
    EXPECT_NE(exportText({record}, mark).find("Level %d|r]"), std::string::npos);
}

TEST(ExportTextDeathTest, RecordWithoutNewEditEndsTheProgram) {
    auto list = generalCommands();
    list[4].erase(new_edit);
    EXPECT_DEATH(exportText(list, mark), "Unexpectedly found nil while unwrapping an Optional");
}

TEST(ExportTextDeathTest, UnchangedRecordWithoutDefaultEndsTheProgram) {
    auto list = generalCommands();
    list[1].erase(def);
    EXPECT_DEATH(exportText(list, mark), "Unexpectedly found nil while unwrapping an Optional");
}

TEST(ExportText, ChangedRecordNeedsNoDefault) {
    auto list = generalCommands();
    fillTemplate(list[1], "X");
    list[1].erase(def);
    EXPECT_EQ(exportText(list, mark), expectedBlocks(list));
}

} // namespace
} // namespace tarnic
