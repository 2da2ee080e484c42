#include "core/vocabulary/KeyCodes.h"
#include "core/vocabulary/KeyLabels.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

TEST(KeyLabels, EscapeAndF1AreOneEntryDictionariesInThatOrder) {
    EXPECT_EQ(ESC(), (std::map<std::string, int>{{"ESC", 53}}));
    EXPECT_EQ(F1(), (std::map<std::string, int>{{"F1", 122}}));
    ASSERT_EQ(keys_dict().size(), 2u);
    EXPECT_EQ(keys_dict()[0], ESC());
    EXPECT_EQ(keys_dict()[1], F1());
}

TEST(KeyLabels, OlderNamingDiffersFromThePopupLabelsWhereItShould) {
    EXPECT_STREQ(semcln, ";");
    EXPECT_STREQ(CTRL, "^");
    EXPECT_STREQ(Space, "␣");
    EXPECT_STREQ(arLft, "←");
    EXPECT_STREQ(arRgt, "→");
    EXPECT_STREQ(arUp, "↑");
    EXPECT_STREQ(arDown, "↓");
    EXPECT_STREQ(tab, "⇥");
    EXPECT_STREQ(bacspce, "<-");
    EXPECT_STREQ(Retrn, "↵");
    EXPECT_STREQ(CAPS, "⇪");
    EXPECT_STREQ(spiral, "§");
    EXPECT_STREQ(SHIFT, "Shift");
    EXPECT_STREQ(console, "~");
    // None of these is a key_codes label, except where both namings agree.
    EXPECT_FALSE(codeOfLabel(semcln).has_value());
    EXPECT_FALSE(codeOfLabel(Space).has_value());
    EXPECT_EQ(codeOfLabel(cQ), 12);
}

} // namespace
} // namespace tarnic
