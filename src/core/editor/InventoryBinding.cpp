#include "core/editor/InventoryBinding.h"

#include "core/fatal/Fatal.h"
#include "core/vocabulary/KeyCodes.h"

namespace tarnic {

InventoryDisplay displayOf(const std::optional<SlotBinding>& binding) {
    return displayOf(binding, KeyNames());
}

InventoryDisplay displayOf(const std::optional<SlotBinding>& binding, const KeyNames& names) {
    InventoryDisplay shown{select, false};
    if (!binding) {
        return shown;
    }
    if (binding->isCutShort()) {
        fatalError(kIndexOutOfRange,
                   "inventory binding has " + std::to_string(binding->held) + " elements, needs 3");
    }
    if (std::optional<std::string> name = names.nameOf(binding->key)) {
        shown.title = std::move(*name);
    }
    shown.shift = binding->modifier != kNoModifier;
    return shown;
}

std::int64_t triggerCodeOf(std::string_view title) {
    return triggerCodeOf(title, KeyNames());
}

std::int64_t triggerCodeOf(std::string_view title, const KeyNames& names) {
    // Names are unique, so the first match is the only one.
    const std::optional<int> code = names.codeOf(title);
    return code ? *code : kNoKey;
}

std::optional<SlotBinding> bindingFrom(std::int64_t editing, std::string_view title, bool shift) {
    return bindingFrom(editing, title, shift, KeyNames());
}

std::optional<SlotBinding> bindingFrom(std::int64_t editing, std::string_view title, bool shift,
                                       const KeyNames& names) {
    const std::int64_t key = triggerCodeOf(title, names);
    const std::int64_t modifier = shift ? kShiftModifier : kNoModifier;
    if (editing < 1 || editing > 6) {
        return std::nullopt;
    }
    return SlotBinding{editing, modifier, key};
}

namespace {

// Virtual key codes are seven bits wide: no key, and so no key press, has a code outside 0..127.
constexpr std::int64_t kLargestKeyCode = 127;

bool isKeyCode(std::int64_t code) {
    return code >= 0 && code <= kLargestKeyCode;
}

// Whether a whole binding can never tap: a slot the game does not have (inventoryPress posts
// nothing for it), or a trigger or modifier code that no key press can ever equal. "Select"
// (kNoKey) is the player's own choice of no key, not damage.
bool neverTaps(const SlotBinding& binding) {
    const bool slotExists = binding.slot >= 1 && binding.slot <= 6;
    return !slotExists || !(binding.key == kNoKey || isKeyCode(binding.key)) ||
           !isKeyCode(binding.modifier);
}

} // namespace

std::string slotTitle(int slot, const std::optional<SlotBinding>& binding) {
    return slotTitle(slot, binding, KeyNames());
}

std::string slotTitle(int slot, const std::optional<SlotBinding>& binding, const KeyNames& names) {
    std::string title = "Slot " + std::to_string(slot) + "  ";
    if (!binding) {
        return title + "none";
    }
    if (binding->isCutShort() || neverTaps(*binding)) {
        return title + "(damaged)";
    }
    const InventoryDisplay shown = displayOf(binding, names);
    if (shown.shift) {
        title += "Shift+";
    }
    // The pop-up shows "Select" exactly for a code without a label.
    return title + (shown.title == select ? std::string("(no key)") : shown.title);
}

} // namespace tarnic
