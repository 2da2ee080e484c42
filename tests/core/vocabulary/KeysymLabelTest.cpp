#include "core/vocabulary/KeysymLabel.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

TEST(KeysymLabel, LettersAreNamedInUpperCase) {
    EXPECT_EQ(keysymLabel('a'), "A");
    EXPECT_EQ(keysymLabel('z'), "Z");
    EXPECT_EQ(keysymLabel('Q'), "Q");
}

TEST(KeysymLabel, LatinOneLettersAndSymbolsAsTheKeyPrintsThem) {
    EXPECT_EQ(keysymLabel(0xe9), "\u00C9"); // eacute
    EXPECT_EQ(keysymLabel(0xf9), "\u00D9"); // ugrave
    EXPECT_EQ(keysymLabel(0xfc), "\u00DC"); // udiaeresis
    EXPECT_EQ(keysymLabel(0xe7), "\u00C7"); // ccedilla
    EXPECT_EQ(keysymLabel(0xff), "\u0178"); // ydiaeresis
    EXPECT_EQ(keysymLabel(0xb2), "\u00B2"); // twosuperior has no capital
    EXPECT_EQ(keysymLabel(0x26), "&");
    EXPECT_EQ(keysymLabel(0x2c), ",");
    EXPECT_EQ(keysymLabel(0xf7), "\u00F7"); // division sign, not a letter
}

TEST(KeysymLabel, SharpSKeepsItsOneLetter) {
    EXPECT_EQ(keysymLabel(0xdf), "\u00DF");
}

TEST(KeysymLabel, DeadKeysAreNamedByTheirAccent) {
    EXPECT_EQ(keysymLabel(0xfe52), "^");
    EXPECT_EQ(keysymLabel(0xfe51), "\u00B4");
    EXPECT_EQ(keysymLabel(0xfe57), "\u00A8");
    EXPECT_EQ(keysymLabel(0xfe50), "`");
}

TEST(KeysymLabel, UnicodeKeysymsAreTheirCodePoints) {
    EXPECT_EQ(keysymLabel(0x1000439), "\u0419"); // Cyrillic short i
    EXPECT_EQ(keysymLabel(0x10003c2), "\u03A3"); // final sigma
    EXPECT_EQ(keysymLabel(0x10020ac), "\u20AC"); // euro sign
    EXPECT_EQ(keysymLabel(0x1000161), "\u0160"); // s with caron
    EXPECT_EQ(keysymLabel(0x1000142), "\u0141"); // l with stroke
}

TEST(KeysymLabel, NothingPrintableKeepsNoName) {
    EXPECT_EQ(keysymLabel(0x20), std::nullopt);      // space
    EXPECT_EQ(keysymLabel(0xa0), std::nullopt);      // no-break space
    EXPECT_EQ(keysymLabel(0xff0d), std::nullopt);    // Return
    EXPECT_EQ(keysymLabel(0xff1b), std::nullopt);    // Escape
    EXPECT_EQ(keysymLabel(0xffb7), std::nullopt);    // KP_7
    EXPECT_EQ(keysymLabel(0xffbe), std::nullopt);    // F1
    EXPECT_EQ(keysymLabel(0xffe1), std::nullopt);    // Shift_L
    EXPECT_EQ(keysymLabel(0x6ca), std::nullopt);     // a legacy Cyrillic keysym the rule lacks
    EXPECT_EQ(keysymLabel(0x1000007), std::nullopt); // a control character
    EXPECT_EQ(keysymLabel(0x1002003), std::nullopt); // em space
    EXPECT_EQ(keysymLabel(0x100d800), std::nullopt); // a surrogate
    EXPECT_EQ(keysymLabel(0x1110000), std::nullopt); // past Unicode
    EXPECT_EQ(keysymLabel(0), std::nullopt);
}

} // namespace
} // namespace tarnic
