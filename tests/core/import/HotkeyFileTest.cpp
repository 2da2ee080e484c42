#include "core/import/HotkeyFile.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnic {
namespace {

using namespace std::string_literals;

std::vector<std::string> idsOf(const std::vector<HotkeyFileSection>& sections) {
    std::vector<std::string> ids;
    for (const HotkeyFileSection& section : sections) {
        ids.push_back(section.id);
    }
    return ids;
}

TEST(HotkeyFile, SectionsWithTheirLinesInFileOrder) {
    const auto sections = readHotkeyFile("[CmdMove]\nTip=Move\nHotkey=M\n[Adef]\nHotkey=D");
    ASSERT_EQ(sections.size(), 2u);
    EXPECT_EQ(sections[0].id, "CmdMove");
    EXPECT_EQ(sections[0].lines, (std::vector<std::string>{"Tip=Move", "Hotkey=M"}));
    EXPECT_EQ(sections[1].id, "Adef");
    EXPECT_EQ(sections[1].lines, (std::vector<std::string>{"Hotkey=D"}));
}

TEST(HotkeyFile, ByteOrderMarkAndCarriageReturnsAreNotPartOfTheText) {
    const auto sections = readHotkeyFile("\xEF\xBB\xBF[CmdMove]\r\nTip=Move\r\nHotkey=M\r\n");
    ASSERT_EQ(sections.size(), 1u);
    EXPECT_EQ(sections[0].id, "CmdMove");
    EXPECT_EQ(sections[0].lines, (std::vector<std::string>{"Tip=Move", "Hotkey=M"}));
}

TEST(HotkeyFile, AByteOrderMarkLaterInTheTextIsJustText) {
    const auto sections = readHotkeyFile("[A]\n\xEF\xBB\xBFHotkey=Q");
    ASSERT_EQ(sections.size(), 1u);
    EXPECT_EQ(sections[0].lines, (std::vector<std::string>{"\xEF\xBB\xBFHotkey=Q"}));
}

TEST(HotkeyFile, CommentsEmptyLinesAndBlanksAtTheEndsAreDropped) {
    const auto sections =
        readHotkeyFile("// head\n\n  [Aens]  \t\n// Ensnare\n  Hotkey=E \n\t\n   // indented\n");
    ASSERT_EQ(sections.size(), 1u);
    EXPECT_EQ(sections[0].id, "Aens");
    EXPECT_EQ(sections[0].lines, (std::vector<std::string>{"Hotkey=E"}));
}

TEST(HotkeyFile, TheCommentsRightAboveAHeaderAreKeptWithIt) {
    const auto sections = readHotkeyFile(
        "// file\n[A]\n// inside\nHotkey=Q\n// above B\n\n  ///B  \n[B]\nHotkey=W\n// end");
    ASSERT_EQ(sections.size(), 2u);
    EXPECT_EQ(sections[0].comments, (std::vector<std::string>{"// file"}));
    EXPECT_EQ(sections[1].comments, (std::vector<std::string>{"// above B", "///B"}));
}

TEST(HotkeyFile, CommentsFollowedByALineAreNoSectionsComments) {
    const auto sections = readHotkeyFile("[A]\nHotkey=Q\n// note\nTip=x\n[B]\n");
    ASSERT_EQ(sections.size(), 2u);
    EXPECT_TRUE(sections[1].comments.empty());
    EXPECT_EQ(sections[0].lines, (std::vector<std::string>{"Hotkey=Q", "Tip=x"}));
}

TEST(HotkeyFile, LinesBeforeTheFirstHeaderBelongToNoSection) {
    const auto sections = readHotkeyFile("Hotkey=Q\nTip=x\n[Adef]\nHotkey=D");
    ASSERT_EQ(sections.size(), 1u);
    EXPECT_EQ(sections[0].lines, (std::vector<std::string>{"Hotkey=D"}));
}

TEST(HotkeyFile, ARepeatedSectionIsKeptEachTime) {
    const auto sections = readHotkeyFile("[AOwk]\nHotkey=W\n[AOwk]\nHotkey=R\n");
    EXPECT_EQ(idsOf(sections), (std::vector<std::string>{"AOwk", "AOwk"}));
    EXPECT_EQ(sections[1].lines, (std::vector<std::string>{"Hotkey=R"}));
}

TEST(HotkeyFile, NamesAreKeptAsTheFileSpellsThem) {
    // Matching them without case is for the reader of the sections, not for the file's reading.
    const auto sections = readHotkeyFile("[ahfs]\nhotkey=q\n[AHFS]\nHOTKEY=Q\n");
    EXPECT_EQ(idsOf(sections), (std::vector<std::string>{"ahfs", "AHFS"}));
    EXPECT_EQ(sections[0].lines, (std::vector<std::string>{"hotkey=q"}));
    EXPECT_EQ(sections[1].lines, (std::vector<std::string>{"HOTKEY=Q"}));
}

TEST(HotkeyFile, AnEmptyHeaderIsASectionWithAnEmptyName) {
    const auto sections = readHotkeyFile("[]\nHotkey=Q\n[");
    ASSERT_EQ(sections.size(), 1u);
    EXPECT_EQ(sections[0].id, "");
    EXPECT_EQ(sections[0].lines, (std::vector<std::string>{"Hotkey=Q", "["}));
}

TEST(HotkeyFile, NothingGivesNoSection) {
    EXPECT_TRUE(readHotkeyFile("").empty());
    EXPECT_TRUE(readHotkeyFile("\xEF\xBB\xBF").empty());
    EXPECT_TRUE(readHotkeyFile("\r\n\n// only comments\n").empty());
}

TEST(HotkeyFile, AnyBytesAreRead) {
    std::string bytes;
    for (int i = 0; i < 256; ++i) {
        bytes.push_back(static_cast<char>(i));
    }
    bytes += "\n[X\0Y]\n"s;
    const auto sections = readHotkeyFile(bytes);
    ASSERT_EQ(sections.size(), 1u);
    EXPECT_EQ(sections[0].id, std::string("X\0Y", 3));
}

TEST(TrimBlanks, DropsBlanksAndTabsAtBothEndsOnly) {
    EXPECT_EQ(trimBlanks(" \ta b\t "), "a b");
    EXPECT_EQ(trimBlanks(" \t "), "");
    EXPECT_EQ(trimBlanks(""), "");
}

} // namespace
} // namespace tarnic
