#include "core/remapper/InventoryRemapper.h"

#include "core/remapper/SlotKeys.h"
#include "core/vocabulary/KeyCodes.h"

#include <string>

namespace tarnic {

InventoryRemapper::InventoryRemapper(KeyPoster& poster) : poster_(poster) {}

void InventoryRemapper::setBindings(const InventoryBindings& bindings) {
    bindings_ = bindings;
}

void InventoryRemapper::keyDown(int keyCode) {
    if (tapsAllowed()) {
        // Every binding is tested, so one press may tap several slots, in slot order.
        for (const std::optional<SlotBinding>& binding : bindings_.slotBindings) {
            action(binding, keyCode);
        }
    }
    followChatLine(keyCode);
}

bool InventoryRemapper::tapsAllowed() const {
    if (bindings_.options.onlyWhileGameInFront && !gameInFront) {
        return false;
    }
    return !(bindings_.options.pauseWhileTypingInChat && chatOpen);
}

bool InventoryRemapper::needsFrontmostAtKeyPress() const {
    return bindings_.options.onlyWhileGameInFront || bindings_.options.pauseWhileTypingInChat;
}

void InventoryRemapper::followChatLine(int keyCode) {
    // The chat line belongs to the game's window: Enter typed into another program opens nothing.
    if (!gameInFront) {
        return;
    }
    if (keyCode == kReturnKeyCode || keyCode == kKeypadEnterKeyCode) {
        chatOpen = !chatOpen;
    } else if (keyCode == kEscapeKeyCode) {
        chatOpen = false;
    }
}

void InventoryRemapper::frontmostChanged(const std::optional<std::string>& identifier) {
    gameInFront = identifier.has_value() && *identifier == war3ID;
    if (!gameInFront) {
        // What happens to the chat line while the game is away (a click into it on the way
        // back, keys we never see) cannot be followed. Counting from closed again errs on the
        // safe side: a line wrongly taken for open would silence every bound key.
        chatOpen = false;
    }
}

void InventoryRemapper::flagsChanged(int keyCode) {
    // A parity bit, not a reading of the keyboard: every press and every release of any
    // modifier flips it.
    flagHold = keyCode;
    isFlag = !isFlag;
}

void InventoryRemapper::action(const std::optional<SlotBinding>& binding, int keyPrss) {
    if (!binding) {
        return;
    }
    // With a modifier: the last modifier event must have been that very key (so the right
    // Shift, 60, never stands for a left-Shift binding, 56).
    if (isFlag && flagHold == modifierOf(*binding) && keyPrss == keyOf(*binding)) {
        inventoryPress(binding->slot);
        tapped(*binding);
    }
    // Without a modifier: fires on its key whatever is held. Made independently of the first.
    if (keyPrss == keyOf(*binding) && modifierOf(*binding) == 0) {
        inventoryPress(binding->slot);
        tapped(*binding);
    }
}

void InventoryRemapper::tapped(const SlotBinding& binding) {
    // Told after the tap, and only of a slot that was tapped: reporting adds nothing before it.
    if (tapListener_ != nullptr && keypadKeyOfSlot(binding.slot)) {
        tapListener_->slotTapped({binding.slot, modifierOf(binding), keyOf(binding)});
    }
}

void InventoryRemapper::eventWithTimer(const FrontmostApplication& frontmost) {
    const std::optional<std::string> identifier = frontmost.bundleIdentifier();
    isWarRun = identifier.has_value() && *identifier == war3ID;
}

void InventoryRemapper::inventoryPress(std::int64_t slot) {
    const std::optional<std::uint16_t> key = keypadKeyOfSlot(slot);
    if (!key) {
        return;
    }
    // One complete tap, whatever the trigger key does next.
    keyboardKeyDown(*key);
    keyboardKeyUp(*key);
}

void InventoryRemapper::keyboardKeyDown(std::uint16_t key) {
    poster_.postKeyDown(key);
}

void InventoryRemapper::keyboardKeyUp(std::uint16_t key) {
    poster_.postKeyUp(key);
}

} // namespace tarnic
