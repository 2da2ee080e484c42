#pragma once

#include "core/bindings/InventoryOptions.h"
#include "core/bindings/SlotBinding.h"

#include <array>
#include <optional>

namespace tarnic {

// Everything that decides which key taps which inventory slot: the six slot bindings and the two
// options. A plain value: whoever reacts to key presses gets a copy of the whole each time it
// changes, never a reference into the window's state.
struct InventoryBindings {
    static constexpr int kSlotCount = 6;

    // inventoryModel1 .. inventoryModel6: the binding of slot 1 .. 6, nothing while unbound.
    std::array<std::optional<SlotBinding>, kSlotCount> slotBindings;
    InventoryOptions options;

    // The binding of slot `slot`, 1 to 6; any other slot is a programming error.
    std::optional<SlotBinding>& of(int slot);
    const std::optional<SlotBinding>& of(int slot) const;

    bool operator==(const InventoryBindings&) const = default;
};

} // namespace tarnic
