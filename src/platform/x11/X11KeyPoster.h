#pragma once

#include "core/platform/KeyPoster.h"

#include <memory>
#include <optional>

namespace tarnic::x11 {

class X11Connection;
class X11KeypadKeycodes;

// Posts keys through XTest on the backend's main connection, so the X server takes them as
// keyboard input and gives them to whichever window has the focus. Each event is flushed at
// once, except a slot key's key-down, which goes out with its key-up (see postKeyDown). Held
// modifiers stay held: a Shift the player holds goes with the posted key.
//
// The inventory slots' keypad keys go out on keycodes of the program's own (X11KeypadKeycodes),
// which are the keypad digit whatever the modifiers and Num Lock; Num Lock is not touched.
//
// Any other key goes out on its own physical key. A keypad digit posted that way (the slots'
// keys too when no keycode of our own could be claimed) reaches a program run by Wine as that
// digit only while Num Lock is on: when it is off, the key-down locks it on first and the
// matching key-up turns it off again after the release. That still gives a cursor key while
// Shift is held, which only the keycodes of our own avoid.
class X11KeyPoster : public KeyPoster {
public:
    X11KeyPoster(std::shared_ptr<X11Connection> connection,
                 std::shared_ptr<X11KeypadKeycodes> keypad);

    // A slot key's key-down is left for its key-up to flush, which follows it at once.
    void postKeyDown(std::uint16_t keyCode) override;
    void postKeyUp(std::uint16_t keyCode) override;

private:
    void lockNumLock(bool on);

    std::shared_ptr<X11Connection> connection_;
    std::shared_ptr<X11KeypadKeycodes> keypad_;
    bool xtestAvailable_ = false;
    unsigned numLockMask_ = 0;
    // Set while a tap that turned Num Lock on is in progress.
    bool numLockToRestore_ = false;
    // The key code and X keycode of the last key-down that went out on a keycode of our own:
    // its key-up goes to the same keycode, even if the keymap changed in between.
    std::optional<std::uint16_t> ownDownKeyCode_;
    unsigned ownDownKeycode_ = 0;
};

} // namespace tarnic::x11
