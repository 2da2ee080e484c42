#pragma once

#include "core/platform/Platform.h"
#include "core/remapper/InventoryRemapper.h"

#include <memory>

namespace tarnic {

// Connects the remapper to a platform: the observers feed its decisions, the platform's poster
// types its taps, the game-detection tick asks the platform which application is in front, and
// the frontmost watcher tells it of every change of the window in front.
// The owner (the main window's controller) keeps the session, the bindings, the options and the
// platform for the life of the process.
class RemapperSession {
public:
    // Reads `inventoryModels` and `options` afresh on every key press. The platform must outlive
    // the session.
    RemapperSession(const InventoryRemapper::Models& inventoryModels, Platform& platform);
    RemapperSession(const InventoryRemapper::Models& inventoryModels,
                    const InventoryOptions& options, Platform& platform);

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

    // The game-detection tick: refreshes isWarRun from the frontmost application.
    void eventWithTimer();

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
