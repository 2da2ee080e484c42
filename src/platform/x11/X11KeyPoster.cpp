#include "platform/x11/X11KeyPoster.h"

#include "platform/x11/X11Connection.h"
#include "platform/x11/X11KeyCodes.h"
#include "platform/x11/X11KeypadKeycodes.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

namespace tarnic::x11 {

X11KeyPoster::X11KeyPoster(std::shared_ptr<X11Connection> connection,
                           std::shared_ptr<X11KeypadKeycodes> keypad)
    : connection_(std::move(connection)), keypad_(std::move(keypad)) {
    Display* display = connection_->display();
    int eventBase = 0;
    int errorBase = 0;
    int major = 0;
    int minor = 0;
    xtestAvailable_ = XTestQueryExtension(display, &eventBase, &errorBase, &major, &minor) == True;
    int xkbMajor = XkbMajorVersion;
    int xkbMinor = XkbMinorVersion;
    if (XkbQueryExtension(display, nullptr, nullptr, nullptr, &xkbMajor, &xkbMinor)) {
        numLockMask_ = XkbKeysymToModifiers(display, XK_Num_Lock);
    }
}

void X11KeyPoster::lockNumLock(bool on) {
    XkbLockModifiers(connection_->display(), XkbUseCoreKbd, numLockMask_, on ? numLockMask_ : 0);
}

void X11KeyPoster::postKeyDown(std::uint16_t keyCode) {
    if (!xtestAvailable_) {
        return;
    }
    Display* display = connection_->display();
    if (const std::optional<unsigned> own = keypad_ ? keypad_->keycodeFor(keyCode) : std::nullopt) {
        ownDownKeyCode_ = keyCode;
        ownDownKeycode_ = *own;
        // Not flushed: a slot's key-down is followed at once by its key-up, and the two go out in
        // one write, so the server takes the whole tap in one go. The key thread flushes after
        // every batch of keys all the same.
        XTestFakeKeyEvent(display, *own, True, CurrentTime);
        return;
    }
    const std::optional<unsigned> xKeycode = xKeycodeOfMacKeyCode(keyCode);
    if (!xKeycode) {
        return;
    }
    if (numLockMask_ != 0 && !numLockToRestore_ && needsNumLock(keyCode)) {
        XkbStateRec state{};
        if (XkbGetState(display, XkbUseCoreKbd, &state) == Success &&
            (state.locked_mods & numLockMask_) == 0) {
            lockNumLock(true);
            numLockToRestore_ = true;
        }
    }
    XTestFakeKeyEvent(display, *xKeycode, True, CurrentTime);
    XFlush(display);
}

void X11KeyPoster::postKeyUp(std::uint16_t keyCode) {
    if (!xtestAvailable_) {
        return;
    }
    Display* display = connection_->display();
    std::optional<unsigned> own;
    if (ownDownKeyCode_ == keyCode) {
        own = ownDownKeycode_;
        ownDownKeyCode_.reset();
    } else if (keypad_) {
        // A key-up without its key-down: wherever that key goes out now.
        own = keypad_->keycodeFor(keyCode);
    }
    if (own) {
        XTestFakeKeyEvent(display, *own, False, CurrentTime);
        XFlush(display);
        return;
    }
    const std::optional<unsigned> xKeycode = xKeycodeOfMacKeyCode(keyCode);
    if (!xKeycode) {
        return;
    }
    XTestFakeKeyEvent(display, *xKeycode, False, CurrentTime);
    if (numLockToRestore_ && needsNumLock(keyCode)) {
        lockNumLock(false);
        numLockToRestore_ = false;
    }
    XFlush(display);
}

} // namespace tarnic::x11
