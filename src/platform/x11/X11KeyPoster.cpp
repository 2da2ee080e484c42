#include "platform/x11/X11KeyPoster.h"

#include "platform/x11/X11Connection.h"
#include "platform/x11/X11KeyCodes.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <optional>

namespace tarnic::x11 {

X11KeyPoster::X11KeyPoster(std::shared_ptr<X11Connection> connection)
    : connection_(std::move(connection)) {
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
    const std::optional<unsigned> xKeycode = xKeycodeOfMacKeyCode(keyCode);
    if (!xtestAvailable_ || !xKeycode) {
        return;
    }
    Display* display = connection_->display();
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
    const std::optional<unsigned> xKeycode = xKeycodeOfMacKeyCode(keyCode);
    if (!xtestAvailable_ || !xKeycode) {
        return;
    }
    Display* display = connection_->display();
    XTestFakeKeyEvent(display, *xKeycode, False, CurrentTime);
    if (numLockToRestore_ && needsNumLock(keyCode)) {
        lockNumLock(false);
        numLockToRestore_ = false;
    }
    XFlush(display);
}

} // namespace tarnic::x11
