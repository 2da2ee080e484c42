#include "core/import/SectionOccurrences.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

const std::vector<HotkeyFileSection> kFile = {
    {.id = "AOwk", .comments = {}, .lines = {"Hotkey=W"}},
    {.id = "Adef", .comments = {}, .lines = {"Hotkey=D"}},
    {.id = "AOwk", .comments = {}, .lines = {"Hotkey=R"}}};

TEST(SectionOccurrences, KnowsWhichIdentifiersTheFileHolds) {
    const SectionOccurrences file(kFile);
    EXPECT_TRUE(file.contains("AOwk"));
    EXPECT_TRUE(file.contains("Adef"));
    EXPECT_FALSE(file.contains("Aens"));
}

TEST(SectionOccurrences, GivesNothingForASectionTheFileLacks) {
    const SectionOccurrences file(kFile);
    EXPECT_EQ(file.pick({"Aens", "Adef"}),
              (std::vector<const HotkeyFileSection*>{nullptr, &kFile[1]}));
}

TEST(SectionOccurrences, RepeatedSectionsAreTakenInFileOrderThenTheLastStays) {
    SectionOccurrences file(kFile);
    EXPECT_EQ(file.pick({"AOwk"}), (std::vector<const HotkeyFileSection*>{&kFile[0]}));
    // Picking alone takes nothing.
    EXPECT_EQ(file.pick({"AOwk"}), (std::vector<const HotkeyFileSection*>{&kFile[0]}));
    file.take({"AOwk"});
    EXPECT_EQ(file.pick({"AOwk"}), (std::vector<const HotkeyFileSection*>{&kFile[2]}));
    file.take({"AOwk"});
    EXPECT_EQ(file.pick({"AOwk"}), (std::vector<const HotkeyFileSection*>{&kFile[2]}));
}

TEST(SectionOccurrences, ASingleSectionServesEveryTaker) {
    SectionOccurrences file(kFile);
    file.take({"Adef"});
    file.take({"Adef"});
    EXPECT_EQ(file.pick({"Adef"}), (std::vector<const HotkeyFileSection*>{&kFile[1]}));
}

TEST(SectionOccurrences, ABlockHoldingAnIdentifierTwiceReadsTwoSections) {
    SectionOccurrences file(kFile);
    EXPECT_EQ(file.pick({"AOwk", "AOwk"}),
              (std::vector<const HotkeyFileSection*>{&kFile[0], &kFile[2]}));
    file.take({"Aens"}); // not in the file: nothing to take
    EXPECT_FALSE(file.contains("Aens"));
}

// The same section as kFile, spelt three ways.
const std::vector<HotkeyFileSection> kSpellings = {
    {.id = "AOwk", .comments = {}, .lines = {"Hotkey=W"}},
    {.id = "adef", .comments = {}, .lines = {"Hotkey=D"}},
    {.id = "aowk", .comments = {}, .lines = {"Hotkey=R"}},
    {.id = "AOWK", .comments = {}, .lines = {"Hotkey=E"}}};

TEST(SectionOccurrences, AnIdentifierIsFoundWhateverItsCase) {
    const SectionOccurrences file(kSpellings);
    EXPECT_TRUE(file.contains("Adef"));
    EXPECT_TRUE(file.contains("ADEF"));
    EXPECT_TRUE(file.contains("aowk"));
    EXPECT_FALSE(file.contains("Adefx"));
    EXPECT_EQ(file.pick({"Adef"}), (std::vector<const HotkeyFileSection*>{&kSpellings[1]}));
}

TEST(SectionOccurrences, SpellingsOfOneIdentifierAreItsOccurrencesInFileOrder) {
    SectionOccurrences file(kSpellings);
    EXPECT_EQ(file.pick({"AOwk", "AOwk"}),
              (std::vector<const HotkeyFileSection*>{&kSpellings[0], &kSpellings[2]}));
    file.take({"AOwk"});
    EXPECT_EQ(file.pick({"AOwk"}), (std::vector<const HotkeyFileSection*>{&kSpellings[2]}));
    // Taken under another spelling, the same identifier moves on.
    file.take({"aOWk"});
    EXPECT_EQ(file.pick({"AOwk"}), (std::vector<const HotkeyFileSection*>{&kSpellings[3]}));
    file.take({"AOwk"});
    EXPECT_EQ(file.pick({"AOwk"}), (std::vector<const HotkeyFileSection*>{&kSpellings[3]}));
}

TEST(SectionOccurrences, ABlockSpellingAnIdentifierTwoWaysReadsTwoSections) {
    const SectionOccurrences file(kSpellings);
    EXPECT_EQ(
        file.pick({"AOwk", "aowk", "Adef"}),
        (std::vector<const HotkeyFileSection*>{&kSpellings[0], &kSpellings[2], &kSpellings[1]}));
}

} // namespace
} // namespace tarnic
