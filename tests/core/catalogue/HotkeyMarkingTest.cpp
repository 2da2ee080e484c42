#include "core/catalogue/HotkeyMarking.h"
#include "core/record/AbilityRecord.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

using catalogue::markHotkeyValues;

TEST(HotkeyMarking, MarksTheValueOfEachHotkeyLine) {
    EXPECT_EQ(markHotkeyValues("// X\n[Aabc]\nTip=|cffffcc00X|r\nHotkey=X\nUnhotkey=X\n"
                               "Researchtip=\"Learn\"\nResearchhotkey=X"),
              std::string("// X\n[Aabc]\nTip=|cffffcc00X|r\nHotkey=") + mark +
                  "\nUnhotkey=" + mark + "\nResearchtip=\"Learn\"\nResearchhotkey=" + mark);
}

TEST(HotkeyMarking, LeavesHotkeysThatDoNotBeginTheirLine) {
    const std::string joined = "[AHre]\nTip=|cffffcc00R|resurrectionHotkey=R\nUntip=\"x\"Hotkey=R";
    EXPECT_EQ(markHotkeyValues(joined), joined);
}

TEST(HotkeyMarking, KeepsAnOpeningEmptyLineAndAddsNoLineFeed) {
    EXPECT_EQ(markHotkeyValues("\n[Aren]\nHotkey=R"), std::string("\n[Aren]\nHotkey=") + mark);
    EXPECT_EQ(markHotkeyValues(""), "");
    EXPECT_EQ(markHotkeyValues("Hotkey=R\n"), std::string("Hotkey=") + mark + "\n");
}

TEST(HotkeyMarking, KeyNamesAreCaseSensitiveAndWhole) {
    const std::string text = "hotkey=R\nHotkeyX=R\nTip=Hotkey=R\nResearchHotkey=R";
    EXPECT_EQ(markHotkeyValues(text), text);
}

} // namespace
} // namespace tarnic
