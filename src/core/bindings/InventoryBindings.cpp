#include "core/bindings/InventoryBindings.h"

#include "core/fatal/Fatal.h"

#include <string>

namespace tarnic {

namespace {
std::size_t indexOf(int slot) {
    if (slot < 1 || slot > InventoryBindings::kSlotCount) {
        fatalError(kIndexOutOfRange, "inventory slot " + std::to_string(slot));
    }
    return static_cast<std::size_t>(slot - 1);
}
} // namespace

std::optional<SlotBinding>& InventoryBindings::of(int slot) {
    return slotBindings[indexOf(slot)];
}

const std::optional<SlotBinding>& InventoryBindings::of(int slot) const {
    return slotBindings[indexOf(slot)];
}

} // namespace tarnic
