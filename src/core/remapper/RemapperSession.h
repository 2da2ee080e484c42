#pragma once

#include "core/platform/Platform.h"
#include "core/remapper/InventoryRemapper.h"

#include <memory>
#include <optional>

namespace tarnic {

// Connects the remapper to a platform: the observers feed its decisions, the platform's poster
// types its taps, the game-detection tick asks the platform which application is in front, and
// the frontmost watcher tells it of every change of the window in front.
// The owner (Application) keeps the session and the platform for the life of the process, and
// hands the session a copy of the bindings whenever they change.
class RemapperSession {
public:
    // No slot is bound and both options are off until setBindings. The platform must outlive the
    // session.
    explicit RemapperSession(Platform& platform);

    // Waits for a key being handled on the key thread; the monitors fall silent after.
    ~RemapperSession();
    RemapperSession(const RemapperSession&) = delete;
    RemapperSession& operator=(const RemapperSession&) = delete;

    // Installs the key-down monitor, then the modifier-change monitor, then the frontmost
    // watcher's change monitor, and takes the frontmost application as the watcher knows it now.
    // Call once; the monitors are never removed. Should the session go first, they fall silent
    // instead of reaching a destroyed remapper.
    //
    // While an option is on, a key press first takes in the window changes that have already
    // arrived (no request to the display server): the decision is about the window in front at
    // that moment.
    void installObservers();

    // The bindings and options from the next key press on: a copy, so the caller's may change
    // without reaching the remapper until it calls again. Taken under the key-path lock, so a
    // key being handled on the key thread sees the old ones or the new ones, whole.
    void setBindings(const InventoryBindings& bindings);

    // The game-detection tick: refreshes isWarRun from the frontmost application and returns it,
    // read under the same lock; nothing when the tick was skipped (the key thread held the lock
    // too long).
    std::optional<bool> eventWithTimer();

    // The platform's key-path lock: the remapper's state may be read or changed only while it is
    // held, as the key thread handles keys meanwhile.
    KeyPathLock& keyPathLock() { return *platform_.keyPath; }

    InventoryRemapper& remapper() { return *remapper_; }
    const InventoryRemapper& remapper() const { return *remapper_; }

private:
    Platform& platform_;
    std::shared_ptr<InventoryRemapper> remapper_;
};

} // namespace tarnic
