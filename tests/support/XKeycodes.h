#pragma once

namespace tarnic::test {

// The X keycode of a Linux evdev key code (KEY_Q and so on from linux/input-event-codes.h), as
// the X server numbers the keys: evdev + 8. Written out here, apart from the backend's table,
// so the tests check that table rather than repeat it.
constexpr unsigned x(unsigned evdevCode) {
    return evdevCode + 8;
}

// Modifier masks of a key event's state, as Xvfb's keymap lays them out.
constexpr unsigned kShiftMask = 1;
constexpr unsigned kNumLockMask = 16; // Mod2

} // namespace tarnic::test
