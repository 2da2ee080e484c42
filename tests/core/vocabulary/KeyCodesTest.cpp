#include "core/vocabulary/KeyCodes.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tarnic {
namespace {

// The table as a player's keyboard reads it, row by row, written out independently of the code.
const std::vector<std::pair<int, std::string>> kExpected = {
    {53, "ESC"},   {122, "F1"},     {120, "F2"},     {99, "F3"},  {118, "F4"},  {96, "F5"},
    {97, "F6"},    {98, "F7"},      {100, "F8"},     {101, "F9"}, {109, "F10"}, {103, "F11"},
    {111, "F12"},  {50, "~"},       {10, "§"},       {18, "1"},   {19, "2"},    {20, "3"},
    {21, "4"},     {23, "5"},       {22, "6"},       {26, "7"},   {28, "8"},    {25, "9"},
    {29, "0"},     {27, "-"},       {24, "+"},       {51, "del"}, {48, "tab"},  {12, "Q"},
    {13, "W"},     {14, "E"},       {15, "R"},       {17, "T"},   {16, "Y"},    {32, "U"},
    {34, "I"},     {31, "O"},       {35, "P"},       {33, "["},   {30, "]"},    {42, "|"},
    {57, "caps"},  {0, "A"},        {1, "S"},        {2, "D"},    {3, "F"},     {5, "G"},
    {4, "H"},      {38, "J"},       {40, "K"},       {37, "L"},   {41, ":"},    {39, "'"},
    {36, "enter"}, {56, "⇧"},       {6, "Z"},        {7, "X"},    {8, "C"},     {9, "V"},
    {11, "B"},     {45, "N"},       {46, "M"},       {43, "<"},   {47, ">"},    {44, "?"},
    {49, "Space"}, {123, "◀︎"}, {124, "▶︎"}, {126, "▲"},  {125, "▼"}};

TEST(KeyCodes, HoldsExactlyTheSeventyOneKeys) {
    ASSERT_EQ(kExpected.size(), 71u);
    ASSERT_EQ(key_codes().size(), 71u);
    for (const auto& [code, label] : kExpected) {
        EXPECT_EQ(labelOfCode(code), label) << "code " << code;
    }
}

TEST(KeyCodes, LabelsAreDistinct) {
    std::set<std::string> labels;
    for (const auto& entry : key_codes()) {
        labels.insert(entry.second);
    }
    EXPECT_EQ(labels.size(), 71u);
}

TEST(KeyCodes, EveryLabelLeadsBackToItsCode) {
    for (const auto& [code, label] : key_codes()) {
        EXPECT_EQ(codeOfLabel(label), code) << label;
    }
}

TEST(KeyCodes, LeftShiftHasTheSameLabelInBothTables) {
    EXPECT_EQ(labelOfCode(56), "⇧");
    ASSERT_EQ(key_codes_flag().count(56), 1u);
    EXPECT_EQ(key_codes_flag().at(56), "⇧");
}

TEST(KeyCodes, ModifierTableNamesTheFiveModifiers) {
    const std::map<int, std::string> expected = {
        {56, "⇧"}, {63, "Fn"}, {59, "CTRL"}, {58, "⌥"}, {55, "⌘"}};
    EXPECT_EQ(key_codes_flag(), expected);
}

TEST(KeyCodes, SpaceIsFoundBySpelledOutLabel) {
    EXPECT_EQ(codeOfLabel("Space"), 49);
}

TEST(KeyCodes, SemicolonKeyIsLabelledColon) {
    EXPECT_EQ(codeOfLabel(";"), std::nullopt);
    EXPECT_EQ(codeOfLabel(":"), 41);
    EXPECT_EQ(codeOfLabel("⇥"), std::nullopt);
}

TEST(KeyCodes, CodeInNeitherTableHasNoLabel) {
    EXPECT_EQ(labelOfCode(76), std::nullopt); // keypad Enter
    EXPECT_EQ(key_codes_flag().count(76), 0u);
    EXPECT_EQ(labelOfCode(60), std::nullopt); // right Shift
    EXPECT_EQ(labelOfCode(-1), std::nullopt);
}

TEST(KeyCodes, SideArrowsCarryTheTextVariationSelectorAndTheOthersDoNot) {
    EXPECT_EQ(*labelOfCode(123), std::string("\xE2\x97\x80\xEF\xB8\x8E"));
    EXPECT_EQ(*labelOfCode(124), std::string("\xE2\x96\xB6\xEF\xB8\x8E"));
    EXPECT_EQ(*labelOfCode(126), std::string("\xE2\x96\xB2"));
    EXPECT_EQ(*labelOfCode(125), std::string("\xE2\x96\xBC"));
}

TEST(KeyCodes, PopupLabelsEachHaveExactlyOneCode) {
    std::vector<std::string_view> popup(keyboardKeysNum.begin(), keyboardKeysNum.end());
    popup.insert(popup.end(), keyboardKeys.begin(), keyboardKeys.end());
    ASSERT_EQ(popup.size(), 48u);
    std::set<int> codes;
    for (std::string_view label : popup) {
        int matches = 0;
        for (const auto& entry : key_codes()) {
            matches += entry.second == label ? 1 : 0;
        }
        EXPECT_EQ(matches, 1) << label;
        codes.insert(codeOfLabel(label).value_or(-1));
    }
    EXPECT_EQ(codes.size(), 48u);
}

TEST(KeyCodes, PopupArraysAreInKeyboardOrder) {
    const std::vector<std::string_view> letters(keyboardKeys.begin(), keyboardKeys.end());
    EXPECT_EQ(letters, (std::vector<std::string_view>{"Q", "W", "E", "R", "T", "Y", "U", "I", "O",
                                                      "P", "A", "S", "D", "F", "G", "H", "J", "K",
                                                      "L", "Z", "X", "C", "V", "B", "N", "M"}));
    const std::vector<std::string_view> symbols(keyboardKeysNum.begin(), keyboardKeysNum.end());
    EXPECT_EQ(symbols, (std::vector<std::string_view>{"1", "2", "3", "4", "5", "6", "7", "8",
                                                      "9", "0", "-", "+", "[", "]", "|", ":",
                                                      "'", "<", ">", "?", "~", "§"}));
}

TEST(KeyCodes, NoKeyTitleAndGameIdentifier) {
    EXPECT_STREQ(select, "Select");
    EXPECT_STREQ(war3ID, "com.blizzard.WarcraftIII");
}

} // namespace
} // namespace tarnic
