#include "platform/x11/X11KeyCodes.h"

#include <algorithm>
#include <array>

namespace tarnic::x11 {

namespace {

// X keycodes are evdev codes (linux/input-event-codes.h) shifted by 8.
constexpr unsigned fromEvdev(unsigned evdevCode) {
    return evdevCode + 8;
}

// By physical position. The Mac ISO section key (§) is the key beside the left Shift on ISO
// boards (KEY_102ND); the grave key (`, ~) is left of 1. The Mac keypad Clear key sits where
// Num Lock sits. Fn has no X keycode.
constexpr std::array kPairs = {
    // Letters
    KeyCodePair{0, fromEvdev(30)},  // A
    KeyCodePair{1, fromEvdev(31)},  // S
    KeyCodePair{2, fromEvdev(32)},  // D
    KeyCodePair{3, fromEvdev(33)},  // F
    KeyCodePair{4, fromEvdev(35)},  // H
    KeyCodePair{5, fromEvdev(34)},  // G
    KeyCodePair{6, fromEvdev(44)},  // Z
    KeyCodePair{7, fromEvdev(45)},  // X
    KeyCodePair{8, fromEvdev(46)},  // C
    KeyCodePair{9, fromEvdev(47)},  // V
    KeyCodePair{11, fromEvdev(48)}, // B
    KeyCodePair{12, fromEvdev(16)}, // Q
    KeyCodePair{13, fromEvdev(17)}, // W
    KeyCodePair{14, fromEvdev(18)}, // E
    KeyCodePair{15, fromEvdev(19)}, // R
    KeyCodePair{16, fromEvdev(21)}, // Y
    KeyCodePair{17, fromEvdev(20)}, // T
    KeyCodePair{31, fromEvdev(24)}, // O
    KeyCodePair{32, fromEvdev(22)}, // U
    KeyCodePair{34, fromEvdev(23)}, // I
    KeyCodePair{35, fromEvdev(25)}, // P
    KeyCodePair{37, fromEvdev(38)}, // L
    KeyCodePair{38, fromEvdev(36)}, // J
    KeyCodePair{40, fromEvdev(37)}, // K
    KeyCodePair{45, fromEvdev(49)}, // N
    KeyCodePair{46, fromEvdev(50)}, // M
    // Digit row
    KeyCodePair{18, fromEvdev(2)},  // 1
    KeyCodePair{19, fromEvdev(3)},  // 2
    KeyCodePair{20, fromEvdev(4)},  // 3
    KeyCodePair{21, fromEvdev(5)},  // 4
    KeyCodePair{23, fromEvdev(6)},  // 5
    KeyCodePair{22, fromEvdev(7)},  // 6
    KeyCodePair{26, fromEvdev(8)},  // 7
    KeyCodePair{28, fromEvdev(9)},  // 8
    KeyCodePair{25, fromEvdev(10)}, // 9
    KeyCodePair{29, fromEvdev(11)}, // 0
    KeyCodePair{27, fromEvdev(12)}, // minus
    KeyCodePair{24, fromEvdev(13)}, // equal
    // Punctuation
    KeyCodePair{33, fromEvdev(26)}, // left bracket
    KeyCodePair{30, fromEvdev(27)}, // right bracket
    KeyCodePair{41, fromEvdev(39)}, // semicolon
    KeyCodePair{39, fromEvdev(40)}, // apostrophe
    KeyCodePair{50, fromEvdev(41)}, // grave
    KeyCodePair{42, fromEvdev(43)}, // backslash
    KeyCodePair{43, fromEvdev(51)}, // comma
    KeyCodePair{47, fromEvdev(52)}, // period
    KeyCodePair{44, fromEvdev(53)}, // slash
    KeyCodePair{10, fromEvdev(86)}, // ISO section (KEY_102ND)
    // Editing and whitespace
    KeyCodePair{36, fromEvdev(28)},   // Return
    KeyCodePair{48, fromEvdev(15)},   // Tab
    KeyCodePair{49, fromEvdev(57)},   // Space
    KeyCodePair{51, fromEvdev(14)},   // Delete (Backspace)
    KeyCodePair{53, fromEvdev(1)},    // Escape
    KeyCodePair{114, fromEvdev(110)}, // Help (Insert)
    KeyCodePair{115, fromEvdev(102)}, // Home
    KeyCodePair{116, fromEvdev(104)}, // Page Up
    KeyCodePair{117, fromEvdev(111)}, // Forward Delete
    KeyCodePair{119, fromEvdev(107)}, // End
    KeyCodePair{121, fromEvdev(109)}, // Page Down
    // Arrows
    KeyCodePair{123, fromEvdev(105)}, // Left
    KeyCodePair{124, fromEvdev(106)}, // Right
    KeyCodePair{125, fromEvdev(108)}, // Down
    KeyCodePair{126, fromEvdev(103)}, // Up
    // Function keys
    KeyCodePair{122, fromEvdev(59)},  // F1
    KeyCodePair{120, fromEvdev(60)},  // F2
    KeyCodePair{99, fromEvdev(61)},   // F3
    KeyCodePair{118, fromEvdev(62)},  // F4
    KeyCodePair{96, fromEvdev(63)},   // F5
    KeyCodePair{97, fromEvdev(64)},   // F6
    KeyCodePair{98, fromEvdev(65)},   // F7
    KeyCodePair{100, fromEvdev(66)},  // F8
    KeyCodePair{101, fromEvdev(67)},  // F9
    KeyCodePair{109, fromEvdev(68)},  // F10
    KeyCodePair{103, fromEvdev(87)},  // F11
    KeyCodePair{111, fromEvdev(88)},  // F12
    KeyCodePair{105, fromEvdev(183)}, // F13
    KeyCodePair{107, fromEvdev(184)}, // F14
    KeyCodePair{113, fromEvdev(185)}, // F15
    KeyCodePair{106, fromEvdev(186)}, // F16
    KeyCodePair{64, fromEvdev(187)},  // F17
    KeyCodePair{79, fromEvdev(188)},  // F18
    KeyCodePair{80, fromEvdev(189)},  // F19
    KeyCodePair{90, fromEvdev(190)},  // F20
    // Modifiers
    KeyCodePair{56, fromEvdev(42)},  // Shift (left)
    KeyCodePair{60, fromEvdev(54)},  // Right Shift
    KeyCodePair{59, fromEvdev(29)},  // Control (left)
    KeyCodePair{62, fromEvdev(97)},  // Right Control
    KeyCodePair{58, fromEvdev(56)},  // Option: left Alt
    KeyCodePair{61, fromEvdev(100)}, // Right Option: right Alt
    KeyCodePair{55, fromEvdev(125)}, // Command: left Super
    KeyCodePair{54, fromEvdev(126)}, // Right Command: right Super
    KeyCodePair{57, fromEvdev(58)},  // Caps Lock
    // Keypad
    KeyCodePair{82, fromEvdev(82)},  // 0
    KeyCodePair{83, fromEvdev(79)},  // 1
    KeyCodePair{84, fromEvdev(80)},  // 2
    KeyCodePair{85, fromEvdev(81)},  // 3
    KeyCodePair{86, fromEvdev(75)},  // 4
    KeyCodePair{87, fromEvdev(76)},  // 5
    KeyCodePair{88, fromEvdev(77)},  // 6
    KeyCodePair{89, fromEvdev(71)},  // 7
    KeyCodePair{91, fromEvdev(72)},  // 8
    KeyCodePair{92, fromEvdev(73)},  // 9
    KeyCodePair{65, fromEvdev(83)},  // decimal point
    KeyCodePair{67, fromEvdev(55)},  // multiply
    KeyCodePair{69, fromEvdev(78)},  // plus
    KeyCodePair{71, fromEvdev(69)},  // Clear (Num Lock)
    KeyCodePair{75, fromEvdev(98)},  // divide
    KeyCodePair{76, fromEvdev(96)},  // Enter
    KeyCodePair{78, fromEvdev(74)},  // minus
    KeyCodePair{81, fromEvdev(117)}, // equals
    // Media
    KeyCodePair{72, fromEvdev(115)}, // Volume Up
    KeyCodePair{73, fromEvdev(114)}, // Volume Down
    KeyCodePair{74, fromEvdev(113)}, // Mute
};

constexpr std::array kModifierMacKeyCodes = {56, 60, 59, 62, 58, 61, 55, 54, 57};

// Keypad 0 to 9 and the decimal point.
constexpr std::array kNumLockMacKeyCodes = {82, 83, 84, 85, 86, 87, 88, 89, 91, 92, 65};

} // namespace

std::span<const KeyCodePair> keyCodePairs() {
    return kPairs;
}

std::optional<int> macKeyCodeOfXKeycode(unsigned xKeycode) {
    const auto it = std::ranges::find(kPairs, xKeycode, &KeyCodePair::xKeycode);
    if (it == kPairs.end()) {
        return std::nullopt;
    }
    return it->macKeyCode;
}

std::optional<unsigned> xKeycodeOfMacKeyCode(int macKeyCode) {
    const auto it = std::ranges::find(kPairs, macKeyCode, &KeyCodePair::macKeyCode);
    if (it == kPairs.end()) {
        return std::nullopt;
    }
    return it->xKeycode;
}

bool isModifierXKeycode(unsigned xKeycode) {
    const std::optional<int> mac = macKeyCodeOfXKeycode(xKeycode);
    return mac && std::ranges::find(kModifierMacKeyCodes, *mac) != kModifierMacKeyCodes.end();
}

bool needsNumLock(int macKeyCode) {
    return std::ranges::find(kNumLockMacKeyCodes, macKeyCode) != kNumLockMacKeyCodes.end();
}

} // namespace tarnic::x11
