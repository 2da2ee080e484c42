#include "platform/x11/X11Platform.h"

#include "platform/x11/X11AccessibilityTrust.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11FrontmostApplication.h"
#include "platform/x11/X11FrontmostWatcher.h"
#include "platform/x11/X11KeyObserver.h"
#include "platform/x11/X11KeyPoster.h"
#include "platform/x11/X11KeypadKeycodes.h"

#include <QGuiApplication>
#include <QWindow>

#include <X11/Xlib.h>

namespace tarnic {

namespace {

// Whether the X input focus is on one of this application's windows. Asked of the server at each
// observed key: Qt learns of a focus change only later, and keeps a window active a while after
// the focus has left it.
bool ownWindowHasFocus(x11::X11Connection& connection) {
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()) == nullptr) {
        return false;
    }
    Window focus = 0;
    int revertTo = 0;
    XGetInputFocus(connection.display(), &focus, &revertTo);
    if (focus == None || focus == PointerRoot) {
        return false;
    }
    const QWindowList windows = QGuiApplication::allWindows();
    for (QWindow* window : windows) {
        // handle() first: winId() would create a native window for one that has none.
        if (window->handle() != nullptr && window->winId() == focus) {
            return true;
        }
    }
    return false;
}

} // namespace

std::optional<Platform> makeX11Platform(const char* displayName) {
    std::shared_ptr<x11::X11Connection> connection = x11::X11Connection::open(displayName);
    if (!connection) {
        return std::nullopt;
    }
    // Claimed now, long before the first tap: a program run by Wine learns of a new mapping only
    // some time after the server announced it.
    auto keypad = std::make_shared<x11::X11KeypadKeycodes>(connection);
    auto observer = std::make_unique<x11::X11KeyObserver>(
        connection, displayName, [raw = connection.get()] { return ownWindowHasFocus(*raw); },
        [keypad](unsigned xKeycode) { return keypad->isOwn(xKeycode); });
    const bool recording = observer->isRecording();
    const bool serverHasRecord = observer->serverHasRecord();

    Platform platform;
    platform.keyObserver = std::move(observer);
    platform.keyPoster = std::make_unique<x11::X11KeyPoster>(connection, keypad);
    platform.frontmostApplication = std::make_unique<x11::X11FrontmostApplication>(connection);
    platform.accessibilityTrust =
        std::make_unique<x11::X11AccessibilityTrust>(recording, serverHasRecord);
    platform.frontmostWatcher = std::make_unique<x11::X11FrontmostWatcher>(connection);
    return platform;
}

} // namespace tarnic
