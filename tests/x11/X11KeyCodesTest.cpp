#include "platform/x11/X11KeyCodes.h"

#include "core/vocabulary/KeyCodes.h"
#include "support/XKeycodes.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <set>

namespace tarnic::x11 {
namespace {

using test::x;

TEST(X11KeyCodes, QIsEvdev16AndMacTwelve) {
    EXPECT_EQ(macKeyCodeOfXKeycode(24), 12);
    EXPECT_EQ(xKeycodeOfMacKeyCode(12), 24u);
}

TEST(X11KeyCodes, KeypadSevenIsEvdev71AndMac89) {
    EXPECT_EQ(macKeyCodeOfXKeycode(79), 89);
    EXPECT_EQ(xKeycodeOfMacKeyCode(89), 79u);
}

TEST(X11KeyCodes, EveryVocabularyKeyHasAnXKeycodeThatLeadsBack) {
    ASSERT_EQ(key_codes().size(), 71u);
    for (const auto& [mac, label] : key_codes()) {
        const std::optional<unsigned> xKeycode = xKeycodeOfMacKeyCode(mac);
        ASSERT_TRUE(xKeycode.has_value()) << "no X keycode for " << mac << " (" << label << ")";
        EXPECT_GE(*xKeycode, 8u);
        EXPECT_LE(*xKeycode, 255u);
        EXPECT_EQ(macKeyCodeOfXKeycode(*xKeycode), mac) << label;
    }
}

TEST(X11KeyCodes, TableIsOneToOneBothWays) {
    std::set<int> macs;
    std::set<unsigned> xs;
    for (const KeyCodePair& pair : keyCodePairs()) {
        EXPECT_TRUE(macs.insert(pair.macKeyCode).second) << "mac code twice: " << pair.macKeyCode;
        EXPECT_TRUE(xs.insert(pair.xKeycode).second) << "X keycode twice: " << pair.xKeycode;
        EXPECT_EQ(xKeycodeOfMacKeyCode(pair.macKeyCode), pair.xKeycode);
        EXPECT_EQ(macKeyCodeOfXKeycode(pair.xKeycode), pair.macKeyCode);
    }
}

struct Expected {
    int mac;
    unsigned evdev;
};

// Physical positions checked against the kernel's own names.
class PhysicalKey : public ::testing::TestWithParam<Expected> {};

TEST_P(PhysicalKey, MapsByPosition) {
    EXPECT_EQ(xKeycodeOfMacKeyCode(GetParam().mac), x(GetParam().evdev));
    EXPECT_EQ(macKeyCodeOfXKeycode(x(GetParam().evdev)), GetParam().mac);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, PhysicalKey,
    ::testing::Values(
        Expected{0, KEY_A}, Expected{6, KEY_Z}, Expected{12, KEY_Q}, Expected{16, KEY_Y},
        Expected{17, KEY_T}, Expected{46, KEY_M}, Expected{18, KEY_1}, Expected{23, KEY_5},
        Expected{22, KEY_6}, Expected{29, KEY_0}, Expected{27, KEY_MINUS}, Expected{24, KEY_EQUAL},
        Expected{33, KEY_LEFTBRACE}, Expected{30, KEY_RIGHTBRACE}, Expected{42, KEY_BACKSLASH},
        Expected{41, KEY_SEMICOLON}, Expected{39, KEY_APOSTROPHE}, Expected{43, KEY_COMMA},
        Expected{47, KEY_DOT}, Expected{44, KEY_SLASH}, Expected{50, KEY_GRAVE},
        Expected{10, KEY_102ND}, Expected{36, KEY_ENTER}, Expected{48, KEY_TAB},
        Expected{49, KEY_SPACE}, Expected{51, KEY_BACKSPACE}, Expected{53, KEY_ESC},
        Expected{122, KEY_F1}, Expected{120, KEY_F2}, Expected{99, KEY_F3}, Expected{118, KEY_F4},
        Expected{96, KEY_F5}, Expected{97, KEY_F6}, Expected{98, KEY_F7}, Expected{100, KEY_F8},
        Expected{101, KEY_F9}, Expected{109, KEY_F10}, Expected{103, KEY_F11},
        Expected{111, KEY_F12}, Expected{105, KEY_F13}, Expected{90, KEY_F20},
        Expected{123, KEY_LEFT}, Expected{124, KEY_RIGHT}, Expected{125, KEY_DOWN},
        Expected{126, KEY_UP}, Expected{115, KEY_HOME}, Expected{119, KEY_END},
        Expected{116, KEY_PAGEUP}, Expected{121, KEY_PAGEDOWN}, Expected{117, KEY_DELETE},
        Expected{114, KEY_INSERT}, Expected{56, KEY_LEFTSHIFT}, Expected{60, KEY_RIGHTSHIFT},
        Expected{59, KEY_LEFTCTRL}, Expected{62, KEY_RIGHTCTRL}, Expected{58, KEY_LEFTALT},
        Expected{61, KEY_RIGHTALT}, Expected{55, KEY_LEFTMETA}, Expected{54, KEY_RIGHTMETA},
        Expected{57, KEY_CAPSLOCK}, Expected{82, KEY_KP0}, Expected{83, KEY_KP1},
        Expected{84, KEY_KP2}, Expected{85, KEY_KP3}, Expected{86, KEY_KP4}, Expected{87, KEY_KP5},
        Expected{88, KEY_KP6}, Expected{89, KEY_KP7}, Expected{91, KEY_KP8}, Expected{92, KEY_KP9},
        Expected{65, KEY_KPDOT}, Expected{67, KEY_KPASTERISK}, Expected{69, KEY_KPPLUS},
        Expected{71, KEY_NUMLOCK}, Expected{75, KEY_KPSLASH}, Expected{76, KEY_KPENTER},
        Expected{78, KEY_KPMINUS}, Expected{81, KEY_KPEQUAL}, Expected{72, KEY_VOLUMEUP},
        Expected{73, KEY_VOLUMEDOWN}, Expected{74, KEY_MUTE}));

TEST(X11KeyCodes, ModifierKeysAreBothShiftsControlsAltsSupersAndCapsLock) {
    for (unsigned evdev : {KEY_LEFTSHIFT, KEY_RIGHTSHIFT, KEY_LEFTCTRL, KEY_RIGHTCTRL, KEY_LEFTALT,
                           KEY_RIGHTALT, KEY_LEFTMETA, KEY_RIGHTMETA, KEY_CAPSLOCK}) {
        EXPECT_TRUE(isModifierXKeycode(x(evdev))) << "evdev " << evdev;
    }
    int modifiers = 0;
    for (const KeyCodePair& pair : keyCodePairs()) {
        modifiers += isModifierXKeycode(pair.xKeycode) ? 1 : 0;
    }
    EXPECT_EQ(modifiers, 9);
}

TEST(X11KeyCodes, OrdinaryKeysNumLockAndUnknownKeycodesAreNoModifiers) {
    for (unsigned evdev : {KEY_Q, KEY_A, KEY_SPACE, KEY_ENTER, KEY_F1, KEY_KP7, KEY_NUMLOCK}) {
        EXPECT_FALSE(isModifierXKeycode(x(evdev))) << "evdev " << evdev;
    }
    EXPECT_FALSE(isModifierXKeycode(0));
    EXPECT_FALSE(isModifierXKeycode(255));
}

TEST(X11KeyCodes, UnknownCodesHaveNoTranslation) {
    EXPECT_FALSE(macKeyCodeOfXKeycode(0).has_value());
    EXPECT_FALSE(macKeyCodeOfXKeycode(7).has_value());
    EXPECT_FALSE(xKeycodeOfMacKeyCode(63).has_value()); // Fn has no X keycode
    EXPECT_FALSE(xKeycodeOfMacKeyCode(-1).has_value());
    EXPECT_FALSE(xKeycodeOfMacKeyCode(200).has_value());
}

TEST(X11KeyCodes, KeypadDigitsAndPointNeedNumLockOtherKeysDoNot) {
    for (int mac : {82, 83, 84, 85, 86, 87, 88, 89, 91, 92, 65}) {
        EXPECT_TRUE(needsNumLock(mac)) << mac;
    }
    for (int mac : {12, 76, 69, 71, 56, 90}) {
        EXPECT_FALSE(needsNumLock(mac)) << mac;
    }
}

} // namespace
} // namespace tarnic::x11
