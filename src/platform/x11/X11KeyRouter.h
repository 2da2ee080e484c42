#pragma once

#include "core/platform/KeyGate.h"

#include <functional>

namespace tarnic::x11 {

// Turns the raw key presses and releases the X server records into the program's two kinds of
// observation, in macOS virtual key codes: a press or a release of a modifier key is a modifier
// change; a press of any other key is a key-down; other releases mean nothing. Keys the table
// does not know and the keycodes this program posts its keypad taps on are not reported at all;
// the rest go through the program's KeyGate, which holds back every key typed while a window of
// this process is the active one. (No trust question here: without the recording no key arrives.)
class X11KeyRouter {
public:
    using Handler = KeyObserver::Handler;

    // Asked at each key event that could be reported: true while a window of this process is the
    // active one (see X11OwnWindowWatcher). It runs on the key path, so it must not wait for the
    // server.
    // `ownTap` names the keycodes of the program's own keypad taps (see X11KeypadKeycodes): the
    // recording sees those taps too, and they are neither key-downs nor modifier changes.
    explicit X11KeyRouter(std::function<bool()> ownWindowActive,
                          std::function<bool(unsigned xKeycode)> ownTap = {});

    void addKeyDownHandler(Handler handler);
    void addFlagsChangedHandler(Handler handler);

    void keyPressed(unsigned xKeycode);
    void keyReleased(unsigned xKeycode);

private:
    bool ownTap(unsigned xKeycode) const;

    std::function<bool(unsigned)> ownTap_;
    KeyGate gate_;
};

} // namespace tarnic::x11
