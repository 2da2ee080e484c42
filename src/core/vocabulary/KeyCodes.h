#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarnic {

// Key codes are macOS virtual key codes (kVK_ numbering) throughout the program, the store
// included; only the X11 layer translates them. The names below that break the program's naming
// style are fixed by the formats (see the list in core/record/AbilityRecord.h).

// Label of each key the pop-ups can name, 71 entries. The labels mix shifted and unshifted US
// symbols on purpose (41 is ":", 24 is "+"); all are distinct, so the table is searched by label.
const std::map<int, std::string>& key_codes();

// The modifier keys: 56 Shift, 63 Fn, 59 Control, 58 Option, 55 Command.
const std::map<int, std::string>& key_codes_flag();

// The label of a code in key_codes, if it has one.
std::optional<std::string> labelOfCode(int code);
// The code whose key_codes label is exactly `label`, if any (";" has none: that key is ":").
std::optional<int> codeOfLabel(std::string_view label);

// Titles of the hotkey pop-up: the 26 letters in keyboard-row order.
inline constexpr std::array<std::string_view, 26> keyboardKeys = {
    "Q", "W", "E", "R", "T", "Y", "U", "I", "O", "P", "A", "S", "D",
    "F", "G", "H", "J", "K", "L", "Z", "X", "C", "V", "B", "N", "M"};

// Digit and symbol titles of the inventory pop-up, which lists them before the letters.
inline constexpr std::array<std::string_view, 22> keyboardKeysNum = {
    "1", "2", "3", "4", "5", "6", "7", "8", "9", "0", "-",
    "+", "[", "]", "|", ":", "'", "<", ">", "?", "~", "\xC2\xA7" /* § */};

// The pop-up title that means "no key".
inline constexpr char select[] = "Select";

// The game's bundle identifier.
inline constexpr char war3ID[] = "com.blizzard.WarcraftIII";

} // namespace tarnic
