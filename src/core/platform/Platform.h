#pragma once

#include "core/platform/AccessibilityTrust.h"
#include "core/platform/FrontmostApplication.h"
#include "core/platform/FrontmostWatcher.h"
#include "core/platform/KeyLabels.h"
#include "core/platform/KeyObserver.h"
#include "core/platform/KeyPathLock.h"
#include "core/platform/KeyPoster.h"

#include <memory>

namespace tarnic {

// The platform facilities the program uses, chosen once at start-up (the X11 backend, or the
// recording fakes in tests).
struct Platform {
    std::unique_ptr<KeyObserver> keyObserver;
    std::unique_ptr<KeyPoster> keyPoster;
    std::unique_ptr<FrontmostApplication> frontmostApplication;
    std::unique_ptr<AccessibilityTrust> accessibilityTrust;
    // The frontmost application as the desktop announces it, for the inventory options that
    // depend on the window in front at the moment of a key press.
    std::unique_ptr<FrontmostWatcher> frontmostWatcher;
    // What the player's keyboard layout prints on each key, for naming keys in the window. May
    // be null: the keys keep their US names.
    std::unique_ptr<KeyLabels> keyLabels;
    // Held while a key is handled; the key observer may call its handlers on a thread of its
    // own, under this lock.
    std::shared_ptr<KeyPathLock> keyPath = makeKeyPathLock();
};

} // namespace tarnic
