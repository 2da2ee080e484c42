#include "core/import/HotkeyPlaces.h"

#include "core/record/AbilityRecord.h"

#include <gtest/gtest.h>

#include <string>

namespace tarnic {
namespace {

const std::string M = mark;

HotkeyFileSection section(std::vector<std::string> lines) {
    return {.id = "Axxx", .comments = {}, .lines = std::move(lines)};
}

TEST(HotkeyPlaces, EveryMarkedLineIsAPlaceOfItsSection) {
    const BlockPlaces block = placesOf("// Call to Arms\n[Amil]\nTip=x\nHotkey=" + M +
                                       "\nUnhotkey=" + M + "\n[Amic]\nHotkey=" + M);
    EXPECT_EQ(block.sections, (std::vector<std::string>{"Amil", "Amic"}));
    ASSERT_EQ(block.places.size(), 3u);
    EXPECT_EQ(block.places[0].section, 0u);
    EXPECT_EQ(block.places[0].before, "Hotkey=");
    EXPECT_EQ(block.places[0].after, "");
    EXPECT_EQ(block.places[1].section, 0u);
    EXPECT_EQ(block.places[1].before, "Unhotkey=");
    EXPECT_EQ(block.places[2].section, 1u);
    EXPECT_EQ(block.places[2].before, "Hotkey=");
}

TEST(HotkeyPlaces, AJoinedLineKeepsItsWholeTextBeforeTheMarker) {
    const BlockPlaces block = placesOf("\n[AHre]\nTip=|cffffcc00R|resurrectionHotkey=" + M);
    ASSERT_EQ(block.places.size(), 1u);
    EXPECT_EQ(block.places[0].before, "Tip=|cffffcc00R|resurrectionHotkey=");
}

TEST(HotkeyPlaces, TextAfterTheMarkerIsKept) {
    const BlockPlaces block = placesOf("[A]\nHotkey=" + M + " ;x");
    ASSERT_EQ(block.places.size(), 1u);
    EXPECT_EQ(block.places[0].after, " ;x");
}

TEST(HotkeyPlaces, UnmarkedLinesAndMarksOutsideSectionsAreNoPlaces) {
    const BlockPlaces block = placesOf("Hotkey=" + M + "\n[ANg1]\nHotkey=" + M + "\nUnhotkey=T");
    EXPECT_EQ(block.sections, (std::vector<std::string>{"ANg1"}));
    ASSERT_EQ(block.places.size(), 1u);
    EXPECT_EQ(block.places[0].before, "Hotkey=");
}

TEST(HotkeyPlaces, ALoneCheckMarkIsNoMarker) {
    const BlockPlaces block = placesOf("[A]\nHotkey=\xE2\x9C\x94");
    EXPECT_TRUE(block.places.empty());
}

TEST(KeyAt, ReadsTheValueOfTheLineOfThatShape) {
    const HotkeyPlace place{0, "Unhotkey=", ""};
    EXPECT_EQ(keyAt(place, section({"Tip=x", "Hotkey=Q", "Unhotkey=W"})), 'W');
}

TEST(KeyAt, ALowerCaseLetterIsThatKey) {
    EXPECT_EQ(keyAt({0, "Hotkey=", ""}, section({"Hotkey=q"})), 'Q');
}

TEST(KeyAt, BlanksAroundTheValueDoNotCount) {
    EXPECT_EQ(keyAt({0, "Hotkey=", ""}, section({"Hotkey=  z\t"})), 'Z');
}

TEST(KeyAt, AnythingButOneLetterIsNoKey) {
    const HotkeyPlace place{0, "Hotkey=", ""};
    for (const char* value : {"", "QW", "1", "512", "\xC3\x84", "-", "Q,W"}) {
        EXPECT_EQ(keyAt(place, section({std::string("Hotkey=") + value})), std::nullopt) << value;
    }
}

TEST(KeyAt, AMissingLineIsNoKey) {
    EXPECT_EQ(keyAt({0, "Researchhotkey=", ""}, section({"Hotkey=Q"})), std::nullopt);
}

TEST(KeyAt, TheFirstFittingLineCounts) {
    EXPECT_EQ(keyAt({0, "Hotkey=", ""}, section({"Hotkey=5", "Hotkey=Q"})), std::nullopt);
    EXPECT_EQ(keyAt({0, "Hotkey=", ""}, section({"Hotkey=E", "Hotkey=Q"})), 'E');
}

TEST(KeyAt, AnotherKeyThatEndsLikeItIsNotItsLine) {
    EXPECT_EQ(keyAt({0, "Hotkey=", ""}, section({"Unhotkey=Q", "Researchhotkey=W"})), std::nullopt);
}

TEST(KeyAt, AJoinedLineIsReadWhole) {
    const HotkeyPlace place{0, "Untip=\"auto\"Hotkey=", ""};
    EXPECT_EQ(keyAt(place, section({"Hotkey=Z", "Untip=\"auto\"Hotkey=Q"})), 'Q');
}

TEST(KeyAt, AJoinedLineWrittenApartIsReadFromItsHotkeyLine) {
    const HotkeyPlace place{0, "Untip=\"auto\"Hotkey=", ""};
    EXPECT_EQ(keyAt(place, section({"Untip=\"auto\"", "Hotkey=Q"})), 'Q');
    EXPECT_EQ(keyAt(place, section({"Untip=\"auto\"", "Unhotkey=Q"})), std::nullopt);
}

TEST(KeyAt, TheTextAfterTheMarkerMustFollow) {
    const HotkeyPlace place{0, "Hotkey=", ";"};
    EXPECT_EQ(keyAt(place, section({"Hotkey=Q"})), std::nullopt);
    EXPECT_EQ(keyAt(place, section({"Hotkey=Q;"})), 'Q');
}

TEST(KeyAt, TheLineNameIsReadInAnyCase) {
    for (const char* line : {"hotkey=Q", "HOTKEY=Q", "hOtKeY=Q"}) {
        EXPECT_EQ(keyAt({0, "Hotkey=", ""}, section({line})), 'Q') << line;
    }
    EXPECT_EQ(keyAt({0, "Researchhotkey=", ""}, section({"Hotkey=Q", "researchhotkey=w"})), 'W');
    // Another name stays another name in any case.
    EXPECT_EQ(keyAt({0, "Hotkey=", ""}, section({"UNHOTKEY=Q", "researchHotkey=W"})), std::nullopt);
}

TEST(KeyAt, AJoinedLineReadsItsNameInAnyCaseAndItsTipAsItIs) {
    const HotkeyPlace place{0, "Tip=|cffffcc00R|resurrectionHotkey=", ""};
    EXPECT_EQ(keyAt(place, section({"tip=|cffffcc00R|resurrectionHotkey=Q"})), 'Q');
    EXPECT_EQ(keyAt(place, section({"TIP=|cffffcc00R|resurrectionHotkey=Q"})), 'Q');
    // What follows the name's "=" is tip text: another text is another line.
    EXPECT_EQ(keyAt(place, section({"Tip=|CFFFFCC00R|RESURRECTIONHOTKEY=Q"})), std::nullopt);
    EXPECT_EQ(keyAt(place, section({"Tip=|cffffcc00R|resurrectionhotkey=Q"})), std::nullopt);
}

TEST(KeyAt, AJoinedLineWrittenApartIsReadFromItsHotkeyLineInAnyCase) {
    const HotkeyPlace place{0, "Untip=\"auto\"Hotkey=", ""};
    EXPECT_EQ(keyAt(place, section({"untip=\"auto\"", "hotkey=Q"})), 'Q');
    EXPECT_EQ(keyAt(place, section({"UNTIP=\"auto\"", "UNHOTKEY=Q"})), std::nullopt);
}

TEST(KeyAt, ABeforeWithoutAnEqualsSignIsAllName) {
    EXPECT_EQ(keyAt({0, "Key ", ""}, section({"KEY Q"})), 'Q');
    EXPECT_EQ(keyAt({0, "Key ", ""}, section({"Key=Q"})), std::nullopt);
}

TEST(KeyAt, ANameThatRunsOnPastThePlacesEqualsSignIsAnotherName) {
    const std::string longName = "Hotkey" + std::string(100000, 'x') + "=Q";
    EXPECT_EQ(keyAt({0, "Hotkey=", ""}, section({longName})), std::nullopt);
    EXPECT_EQ(keyAt({0, "Hotkey=", ""}, section({longName, "HOTKEY=e"})), 'E');
}

} // namespace
} // namespace tarnic
