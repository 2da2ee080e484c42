#include "core/remapper/InventoryRemapper.h"

#include "core/fatal/Fatal.h"
#include "core/remapper/SlotKeys.h"
#include "core/vocabulary/KeyCodes.h"

#include <string>

namespace tarnic {

namespace {
// A stored binding is trusted; one that was cut short outside the program cannot be read.
std::int64_t element(const InventoryModel& model, std::size_t index) {
    if (index >= model.size()) {
        fatalError(kIndexOutOfRange, "inventory binding has " + std::to_string(model.size()) +
                                         " elements, element " + std::to_string(index) +
                                         " was read");
    }
    return model[index];
}
} // namespace

InventoryRemapper::InventoryRemapper(const Models& inventoryModels, KeyPoster& poster,
                                     const InventoryOptions& options)
    : inventoryModels_(inventoryModels), poster_(poster), options_(options) {}

void InventoryRemapper::keyDown(int keyCode) {
    if (tapsAllowed()) {
        // Every binding is tested, so one press may tap several slots, in slot order.
        for (const InventoryModel& model : inventoryModels_) {
            action(model, keyCode);
        }
    }
    followChatLine(keyCode);
}

bool InventoryRemapper::tapsAllowed() const {
    if (options_.onlyWhileGameInFront && !gameInFront) {
        return false;
    }
    return !(options_.pauseWhileTypingInChat && chatOpen);
}

bool InventoryRemapper::needsFrontmostAtKeyPress() const {
    return options_.onlyWhileGameInFront || options_.pauseWhileTypingInChat;
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

void InventoryRemapper::action(const InventoryModel& model, int keyPrss) {
    if (model.empty()) {
        return;
    }
    // With a modifier: the last modifier event must have been that very key (so the right
    // Shift, 60, never stands for a left-Shift binding, 56).
    if (isFlag && flagHold == element(model, 1) && keyPrss == element(model, 2)) {
        inventoryPress(element(model, 0));
        tapped(model);
    }
    // Without a modifier: fires on its key whatever is held. Made independently of the first.
    if (keyPrss == element(model, 2) && element(model, 1) == 0) {
        inventoryPress(element(model, 0));
        tapped(model);
    }
}

void InventoryRemapper::tapped(const InventoryModel& model) {
    // Told after the tap, and only of a slot that was tapped: reporting adds nothing before it.
    if (tapListener_ != nullptr && keypadKeyOfSlot(model[0])) {
        tapListener_->slotTapped({model[0], model[1], model[2]});
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
