#pragma once

#include "core/platform/KeyPoster.h"

#include <memory>

namespace tarnic::x11 {

class X11Connection;

// Posts keys through XTest on the backend's main connection, so the X server takes them as
// keyboard input and gives them to whichever window has the focus. Each event is flushed at
// once.
//
// A keypad digit reaches a program run by Wine as that digit only while Num Lock is on. When it
// is off, the key-down locks it on first and the matching key-up turns it off again after the
// release, so the user's Num Lock is as it was once the tap is over. Held modifiers stay held.
class X11KeyPoster : public KeyPoster {
public:
    explicit X11KeyPoster(std::shared_ptr<X11Connection> connection);

    void postKeyDown(std::uint16_t keyCode) override;
    void postKeyUp(std::uint16_t keyCode) override;

private:
    void lockNumLock(bool on);

    std::shared_ptr<X11Connection> connection_;
    bool xtestAvailable_ = false;
    unsigned numLockMask_ = 0;
    // Set while a tap that turned Num Lock on is in progress.
    bool numLockToRestore_ = false;
};

} // namespace tarnic::x11
