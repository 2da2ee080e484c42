#include "core/import/AsciiCase.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

namespace tarnic {
namespace {

TEST(AsciiCase, OnlyAsciiLettersAreFolded) {
    EXPECT_EQ(asciiLower('A'), 'a');
    EXPECT_EQ(asciiLower('Z'), 'z');
    EXPECT_EQ(asciiLower('q'), 'q');
    for (char c : {'0', '9', '[', ']', '=', '@', '`', '{', '_', '\xC3', '\x84', '\xA4'}) {
        EXPECT_EQ(asciiLower(c), c) << int(c);
    }
}

TEST(AsciiCase, NamesAreEqualInAnyCase) {
    EXPECT_TRUE(equalIgnoringAsciiCase("AHfs", "ahfs"));
    EXPECT_TRUE(equalIgnoringAsciiCase("AHfs", "AHFS"));
    EXPECT_TRUE(equalIgnoringAsciiCase("Researchhotkey=", "RESEARCHHOTKEY="));
    EXPECT_TRUE(equalIgnoringAsciiCase("", ""));
    EXPECT_FALSE(equalIgnoringAsciiCase("AHfs", "AHfx"));
    EXPECT_FALSE(equalIgnoringAsciiCase("AHfs", "AHf"));
    EXPECT_FALSE(equalIgnoringAsciiCase("ANc1", "ANcl"));
    // UTF-8 Ä and ä are different bytes, not different cases of one name.
    EXPECT_FALSE(equalIgnoringAsciiCase("\xC3\x84", "\xC3\xA4"));
    // '@' and '`' sit next to 'A' and 'a'; folding must not join them.
    EXPECT_FALSE(equalIgnoringAsciiCase("@", "`"));
}

TEST(AsciiCase, AnOrderedSetHoldsEachNameOnceWhateverItsCase) {
    std::set<std::string, AsciiCaseLess> names = {"AHfs", "ahfs", "AHFS", "Adef", "CmdMove"};
    EXPECT_EQ(names.size(), 3u);
    EXPECT_TRUE(names.contains(std::string_view("cmdmove")));
    EXPECT_TRUE(names.contains(std::string_view("ADEF")));
    EXPECT_FALSE(names.contains(std::string_view("Aden")));
    // The first spelling inserted is the one kept.
    EXPECT_EQ(*names.find(std::string_view("ahFS")), "AHfs");
}

TEST(AsciiCase, TheOrderIsThatOfTheLowerCaseSpellings) {
    const AsciiCaseLess less;
    // By bytes 'Z' < 'a'; by names "az" < "Zz".
    EXPECT_TRUE(less("az", "Zz"));
    EXPECT_FALSE(less("Zz", "az"));
    EXPECT_FALSE(less("AHfs", "ahfs"));
    EXPECT_FALSE(less("ahfs", "AHfs"));
    EXPECT_TRUE(less("AHf", "ahfs"));
    // Bytes past 0x7F come after every ASCII byte, as std::string orders them.
    EXPECT_TRUE(less("z", "\xC3\x84"));
    EXPECT_FALSE(less("\xC3\x84", "z"));
}

} // namespace
} // namespace tarnic
