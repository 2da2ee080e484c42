#pragma once

#include <optional>
#include <span>

namespace tarnic::x11 {

// One physical key: its macOS virtual key code (the program's numbering) and its X keycode.
// On the X servers we run on, an X keycode is the Linux evdev code plus 8.
struct KeyCodePair {
    int macKeyCode;
    unsigned xKeycode;
};

// Every key the program can translate, one entry per physical key.
std::span<const KeyCodePair> keyCodePairs();

// The macOS virtual key code of the key at this X keycode, if the table knows it.
std::optional<int> macKeyCodeOfXKeycode(unsigned xKeycode);
// The X keycode of the key with this macOS virtual key code, if the table knows it.
std::optional<unsigned> xKeycodeOfMacKeyCode(int macKeyCode);

// Whether the key at this X keycode is a modifier key as the program sees them: both Shifts,
// both Controls, both Alts (Option), both Supers (Command) and Caps Lock. Num Lock is not one:
// it is a lock, not a key a binding can name.
bool isModifierXKeycode(unsigned xKeycode);

// Whether the keyboard's own key for this keypad key means a digit (or the decimal point) only
// while Num Lock is on; with it off, programs run by Wine read it as a cursor key (keypad 7 as
// Home). The poster's keycodes of its own have no such dependence (X11KeypadKeycodes).
bool needsNumLock(int macKeyCode);

} // namespace tarnic::x11
