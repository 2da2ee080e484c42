#include "core/editor/KeyAssignment.h"

#include "core/editor/RecordFactory.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

using test::makeRecord;

TEST(KeyAssignment, SetsTheKeyAtEveryMarker) {
    auto record = makeRecord("Move", std::nullopt, "M");
    assignKey(record, "Q");
    EXPECT_EQ(record.at(new_hotkey), "Q");
    EXPECT_EQ(record.at(new_edit), "// Move\n[Axxx]\nTip=Move\nHotkey=Q\nResearchhotkey=Q");
}

TEST(KeyAssignment, DefaultKeyStillFillsTheEdit) {
    auto record = makeRecord("Move", std::nullopt, "M");
    assignKey(record, "M");
    EXPECT_EQ(record.at(new_edit), record.at(def));
    EXPECT_EQ(record.at(new_hotkey), "M");
}

TEST(KeyAssignment, WithoutSelectedItemTheKeyBecomesAbsent) {
    auto record = makeRecord("Move", std::nullopt, "M");
    assignKey(record, std::nullopt);
    EXPECT_EQ(record.find(new_hotkey), record.end());
    EXPECT_EQ(record.at(new_edit), "// Move\n[Axxx]\nTip=Move\nHotkey=\nResearchhotkey=");
}

TEST(KeyAssignment, TemplateWithoutMarkerIsCopied) {
    auto record = makeRecord("Move", std::nullopt, "M");
    record[for_edit] = "// Move\n[CmdMove]\nHotkey=M";
    assignKey(record, "K");
    EXPECT_EQ(record.at(new_edit), "// Move\n[CmdMove]\nHotkey=M");
}

} // namespace
} // namespace tarnic
