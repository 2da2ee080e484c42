#include "core/record/AbilityRecord.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnic {
namespace {

TEST(AbilityRecord, MarkerIsCheckMarkFollowedByTextVariationSelector) {
    const std::string marker = mark;
    ASSERT_EQ(marker.size(), 6u);
    EXPECT_EQ(marker, std::string("\xE2\x9C\x94\xEF\xB8\x8E"));
}

TEST(AbilityRecord, KeyConstantsHaveTheirStoredSpelling) {
    EXPECT_STREQ(name_spell, "name");
    EXPECT_STREQ(name_parent, "name parent");
    EXPECT_STREQ(def, "default");
    EXPECT_STREQ(def_hotkey, "def hotkey");
    EXPECT_STREQ(new_hotkey, "new hotkey");
    EXPECT_STREQ(for_edit, "for edit");
    EXPECT_STREQ(new_edit, "new edit");
    EXPECT_STREQ(custKs, "CustomKeys");
}

TEST(AbilityRecord, MissingOwnerIsNotAnEmptyOwner) {
    const AbilityRecord move{{name_spell, "Move"}};
    const AbilityRecord nameless{{name_spell, "X"}, {name_parent, ""}};
    EXPECT_EQ(optionalField(move, name_parent), nullptr);
    ASSERT_NE(optionalField(nameless, name_parent), nullptr);
    EXPECT_EQ(*optionalField(nameless, name_parent), "");
}

TEST(AbilityRecord, FillPutsTheKeyAtEveryMarkerOfEverySection) {
    AbilityRecord record{
        {for_edit, std::string("// X\n[A1]\nTip=t\nHotkey=") + mark + "\nUnhotkey=" + mark +
                       "\n// X\n[A2]\nTip=t\nHotkey=" + mark + "\nUnhotkey=" + mark}};
    fillTemplate(record, "Q");
    EXPECT_EQ(record[new_edit], "// X\n[A1]\nTip=t\nHotkey=Q\nUnhotkey=Q\n// X\n[A2]\nTip=t\n"
                                "Hotkey=Q\nUnhotkey=Q");
    EXPECT_EQ(record[new_hotkey], "Q");
}

TEST(AbilityRecord, FillOfATemplateWithoutMarkerLeavesTheTextUnchanged) {
    AbilityRecord record{{for_edit, "// X\n[A1]\nHotkey=D"}};
    fillTemplate(record, "Q");
    EXPECT_EQ(record[new_edit], "// X\n[A1]\nHotkey=D");
    EXPECT_EQ(record[new_hotkey], "Q");
}

TEST(AbilityRecord, LoneCheckMarkIsNotTheMarker) {
    // U+2714 without the variation selector must survive the fill untouched.
    AbilityRecord record{{for_edit, "Hotkey=\xE2\x9C\x94\nHotkey=" + std::string(mark)}};
    fillTemplate(record, "W");
    EXPECT_EQ(record[new_edit], "Hotkey=\xE2\x9C\x94\nHotkey=W");
    EXPECT_EQ(std::string("\xE2\x9C\x94").find(mark), std::string::npos);
}

TEST(AbilityRecord, ResearchTipPlaceholderSurvivesTheFill) {
    AbilityRecord record{{for_edit, std::string("Researchtip=\"Learn [|cffffcc00Level %d|r]\"\n"
                                                "Researchhotkey=") +
                                        mark}};
    fillTemplate(record, "E");
    EXPECT_EQ(record[new_edit], "Researchtip=\"Learn [|cffffcc00Level %d|r]\"\nResearchhotkey=E");
}

TEST(AbilityRecord, ReplaceAllIsLiteralAndNonOverlapping) {
    EXPECT_EQ(replaceAll("aaaa", "aa", "b"), "bb");
    EXPECT_EQ(replaceAll("a.b.c", ".", ""), "abc");
    EXPECT_EQ(replaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(replaceAll("", "a", "x"), "");
}

TEST(AbilityRecordDeathTest, FillWithoutTemplateEndsTheProgram) {
    AbilityRecord record{{name_spell, "Broken"}};
    EXPECT_DEATH(fillTemplate(record, "Q"),
                 "Unexpectedly found nil while unwrapping an Optional value");
}

} // namespace
} // namespace tarnic
