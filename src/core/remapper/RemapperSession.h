#pragma once

#include "core/platform/Platform.h"
#include "core/remapper/InventoryRemapper.h"

#include <memory>

namespace tarnic {

// Connects the remapper to a platform: the observers feed its decisions, the platform's poster
// types its taps, and the game-detection tick asks the platform which application is in front.
// The owner (the main window's controller) keeps the session, the bindings and the platform for
// the life of the process.
class RemapperSession {
public:
    // Reads `inventoryModels` afresh on every key press. The platform's poster and frontmost
    // application must outlive the session.
    RemapperSession(const InventoryRemapper::Models& inventoryModels, Platform& platform);

    RemapperSession(const RemapperSession&) = delete;
    RemapperSession& operator=(const RemapperSession&) = delete;

    // Installs the key-down monitor, then the modifier-change monitor. Call once; the monitors
    // are never removed. Should the session go first, they fall silent instead of reaching a
    // destroyed remapper.
    void installObservers();

    // The game-detection tick: refreshes isWarRun from the frontmost application.
    void eventWithTimer();

    InventoryRemapper& remapper() { return *remapper_; }
    const InventoryRemapper& remapper() const { return *remapper_; }

private:
    Platform& platform_;
    std::shared_ptr<InventoryRemapper> remapper_;
};

} // namespace tarnic
