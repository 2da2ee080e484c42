#include "core/editor/GridLetters.h"

#include "core/catalogue/Catalogue.h"
#include "core/editor/ExportText.h"
#include "core/editor/GridLayout.h"
#include "support/GridGolden.h"
#include "support/LayoutKeysyms.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

using test::frenchKeysyms;
using test::germanKeysyms;
using test::goldenGridExportWith;
using test::sourceFile;
using test::usKeysyms;

KeyNames namesOf(const std::map<int, std::uint32_t>& keysyms) {
    return KeyNames::fromLayout([&keysyms](int code) -> std::optional<std::uint32_t> {
        const auto it = keysyms.find(code);
        return it == keysyms.end() ? std::nullopt : std::optional<std::uint32_t>(it->second);
    });
}

std::string gridExport(const GridLetters& letters) {
    std::vector<AbilityRecord> list = all_data();
    allQWER(list, letters);
    return exportText(list, sourceFile("resources/defaultkeys"));
}

TEST(GridLetters, UsLettersWithoutALayout) {
    EXPECT_EQ(gridLettersOf(KeyNames()), (GridLetters{"Q", "W", "E", "R"}));
    EXPECT_EQ(qwerLetters(), (GridLetters{"Q", "W", "E", "R"}));
}

TEST(GridLetters, AzertyGivesAZER) {
    EXPECT_EQ(gridLettersOf(namesOf(frenchKeysyms())), (GridLetters{"A", "Z", "E", "R"}));
}

TEST(GridLetters, QwertzAndUsGiveQWER) {
    EXPECT_EQ(gridLettersOf(namesOf(germanKeysyms())), (GridLetters{"Q", "W", "E", "R"}));
    EXPECT_EQ(gridLettersOf(namesOf(usKeysyms())), (GridLetters{"Q", "W", "E", "R"}));
}

TEST(GridLetters, APositionWithoutALetterAtoZKeepsItsUsLetter) {
    // A layout with a symbol, an accented letter, a Cyrillic letter and a letter on the four
    // positions (R and K swapped): only the letter is taken.
    const KeyNames names = namesOf({{12, 0x2c}, {13, 0xe9}, {14, 0x1000443}, {15, 'k'}, {40, 'r'}});
    EXPECT_EQ(names.nameOf(13), "\u00C9");
    EXPECT_EQ(gridLettersOf(names), (GridLetters{"Q", "W", "E", "K"}));
}

TEST(GridLetters, TheFourLettersAreAlwaysDifferent) {
    // The Q and W positions both print "a": both keep their US letters.
    EXPECT_EQ(gridLettersOf(namesOf({{12, 'a'}, {13, 'a'}})), (GridLetters{"Q", "W", "E", "R"}));
    // The Q position prints "w" while the W position prints nothing: "W" is taken by its own key.
    EXPECT_EQ(gridLettersOf(namesOf({{12, 'w'}})), (GridLetters{"Q", "W", "E", "R"}));
}

TEST(GridLetters, WithTheUsLettersTheGridIsTheGoldenOne) {
    EXPECT_EQ(gridExport(qwerLetters()), sourceFile("tests/data/export-grid-layout.txt"));
}

TEST(GridLetters, FrenchGridIsTheGoldenGridWithAZER) {
    const GridLetters letters = gridLettersOf(namesOf(frenchKeysyms()));
    const std::string exported = gridExport(letters);
    EXPECT_EQ(exported, goldenGridExportWith({"A", "Z", "E", "R"}));
    EXPECT_NE(exported, sourceFile("tests/data/export-grid-layout.txt"));
}

TEST(GridLetters, GermanAndUsGridsAreTheGoldenGrid) {
    for (const auto& keysyms : {germanKeysyms(), usKeysyms()}) {
        const std::string exported = gridExport(gridLettersOf(namesOf(keysyms)));
        EXPECT_EQ(exported, goldenGridExportWith(qwerLetters()));
        EXPECT_EQ(exported, sourceFile("tests/data/export-grid-layout.txt"));
    }
}

TEST(GridLetters, TheRunRuleIsTheSameWithOtherLetters) {
    std::vector<AbilityRecord> list = all_data();
    std::vector<AbilityRecord> laidOut = list;
    allQWER(laidOut, {"A", "Z", "E", "R"});
    std::vector<AbilityRecord> usual = list;
    allQWER(usual);
    const std::map<std::string, std::string> toAzer = {
        {"Q", "A"}, {"W", "Z"}, {"E", "E"}, {"R", "R"}};
    ASSERT_EQ(laidOut.size(), usual.size());
    for (std::size_t i = 0; i < usual.size(); ++i) {
        const std::string usualKey = usual[i].count(new_hotkey) ? usual[i].at(new_hotkey) : "";
        const std::string key = laidOut[i].count(new_hotkey) ? laidOut[i].at(new_hotkey) : "";
        if (i < kFirstLaidOutIndex) {
            EXPECT_EQ(key, usualKey) << i;
        } else {
            EXPECT_EQ(key, toAzer.at(usualKey)) << i;
        }
    }
}

} // namespace
} // namespace tarnic
