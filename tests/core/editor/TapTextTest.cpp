#include "core/editor/TapText.h"

#include "support/LayoutKeysyms.h"

#include <gtest/gtest.h>

namespace tarnic {
namespace {

KeyNames french() {
    const auto keysyms = test::frenchKeysyms();
    return KeyNames::fromLayout([&keysyms](int code) -> std::optional<std::uint32_t> {
        const auto it = keysyms.find(code);
        return it == keysyms.end() ? std::nullopt : std::optional<std::uint32_t>(it->second);
    });
}

TEST(TapText, SaysTheKeyTheSlotAndItsKeypadKey) {
    EXPECT_EQ(tapText({1, 56, 6}, KeyNames()), "Shift+Z \u2192 Slot 1 (keypad 7)");
    EXPECT_EQ(tapText({3, 0, 12}, KeyNames()), "Q \u2192 Slot 3 (keypad 4)");
    EXPECT_EQ(tapText({6, 0, 18}, KeyNames()), "1 \u2192 Slot 6 (keypad 2)");
    EXPECT_EQ(tapText({2, 0, 0}, KeyNames()), "A \u2192 Slot 2 (keypad 8)");
    EXPECT_EQ(tapText({4, 0, 0}, KeyNames()), "A \u2192 Slot 4 (keypad 5)");
    EXPECT_EQ(tapText({5, 0, 0}, KeyNames()), "A \u2192 Slot 5 (keypad 1)");
}

TEST(TapText, NamesTheKeyAsTheLayoutPrintsIt) {
    // The position of the US Z prints W on AZERTY.
    EXPECT_EQ(tapText({1, 56, 6}, french()), "Shift+W \u2192 Slot 1 (keypad 7)");
    EXPECT_EQ(tapText({2, 0, 12}, french()), "A \u2192 Slot 2 (keypad 8)");
}

TEST(TapText, AKeyWithoutANameIsShownByItsCode) {
    EXPECT_EQ(tapText({1, 0, 127}, KeyNames()), "key 127 \u2192 Slot 1 (keypad 7)");
}

TEST(TapText, GameLine) {
    EXPECT_EQ(gameStatusText(true), "Warcraft III is running");
    EXPECT_EQ(gameStatusText(false), "Warcraft III is not running");
    EXPECT_EQ(gameStatusUnknownText(), "Looking for Warcraft III\u2026");
}

} // namespace
} // namespace tarnic
