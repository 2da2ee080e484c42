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

} // namespace
} // namespace tarnic
