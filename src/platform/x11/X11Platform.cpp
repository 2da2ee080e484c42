#include "platform/x11/X11Platform.h"

#include "platform/x11/X11AccessibilityTrust.h"
#include "platform/x11/X11Connection.h"
#include "platform/x11/X11FrontmostApplication.h"
#include "platform/x11/X11FrontmostWatcher.h"
#include "platform/x11/X11KeyLabels.h"
#include "platform/x11/X11KeyObserver.h"
#include "platform/x11/X11KeyPoster.h"
#include "platform/x11/X11KeypadKeycodes.h"
#include "platform/x11/X11OwnWindowWatcher.h"

#include <memory>

namespace tarnic {

std::optional<Platform> makeX11Platform(const char* displayName) {
    std::shared_ptr<x11::X11Connection> connection = x11::X11Connection::open(displayName);
    if (!connection) {
        return std::nullopt;
    }
    // Claimed now, long before the first tap: a program run by Wine learns of a new mapping only
    // some time after the server announced it.
    auto keypad = std::make_shared<x11::X11KeypadKeycodes>(connection);
    // Whether a key went to one of our own windows is decided from events read before it, not
    // asked of the server at each key.
    auto ownWindows = std::make_shared<x11::X11OwnWindowWatcher>(connection);
    auto observer = std::make_unique<x11::X11KeyObserver>(
        connection, displayName, [ownWindows] { return ownWindows->ownWindowActive(); },
        [keypad](unsigned xKeycode) { return keypad->isOwn(xKeycode); });
    const bool recording = observer->isRecording();
    const bool serverHasRecord = observer->serverHasRecord();

    Platform platform;
    // The key thread holds the main connection's lock while it handles a key.
    platform.keyPath = connection->lock();
    platform.keyObserver = std::move(observer);
    platform.keyPoster = std::make_unique<x11::X11KeyPoster>(connection, keypad);
    platform.frontmostApplication = std::make_unique<x11::X11FrontmostApplication>(connection);
    platform.accessibilityTrust =
        std::make_unique<x11::X11AccessibilityTrust>(recording, serverHasRecord);
    platform.frontmostWatcher = std::make_unique<x11::X11FrontmostWatcher>(connection);
    platform.keyLabels = std::make_unique<x11::X11KeyLabels>(connection);
    return platform;
}

} // namespace tarnic
