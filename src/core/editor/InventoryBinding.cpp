#include "core/editor/InventoryBinding.h"

#include "core/fatal/Fatal.h"
#include "core/vocabulary/KeyCodes.h"

namespace tarnic {

InventoryDisplay displayOf(const InventoryModel& model) {
    return displayOf(model, KeyNames());
}

InventoryDisplay displayOf(const InventoryModel& model, const KeyNames& names) {
    InventoryDisplay shown{select, false};
    if (model.empty()) {
        return shown;
    }
    if (model.size() < 3) {
        fatalError(kIndexOutOfRange,
                   "inventory binding has " + std::to_string(model.size()) + " elements, needs 3");
    }
    if (std::optional<std::string> name = names.nameOf(model[2])) {
        shown.title = std::move(*name);
    }
    shown.shift = model[1] != kNoModifier;
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

std::optional<InventoryModel> bindingFrom(std::int64_t editing, std::string_view title,
                                          bool shift) {
    return bindingFrom(editing, title, shift, KeyNames());
}

std::optional<InventoryModel> bindingFrom(std::int64_t editing, std::string_view title, bool shift,
                                          const KeyNames& names) {
    const std::int64_t key = triggerCodeOf(title, names);
    const std::int64_t modifier = shift ? kShiftModifier : kNoModifier;
    if (editing < 1 || editing > 6) {
        return std::nullopt;
    }
    return InventoryModel{editing, modifier, key};
}

namespace {

// Virtual key codes are seven bits wide: no key, and so no key press, has a code outside 0..127.
constexpr std::int64_t kLargestKeyCode = 127;

bool isKeyCode(std::int64_t code) {
    return code >= 0 && code <= kLargestKeyCode;
}

// Whether a whole model can never tap: a slot the game does not have (inventoryPress posts
// nothing for it), or a trigger or modifier code that no key press can ever equal. "Select"
// (kNoKey) is the player's own choice of no key, not damage.
bool neverTaps(const InventoryModel& model) {
    const bool slotExists = model[0] >= 1 && model[0] <= 6;
    return !slotExists || !(model[2] == kNoKey || isKeyCode(model[2])) || !isKeyCode(model[1]);
}

} // namespace

std::string slotTitle(int slot, const InventoryModel& model) {
    return slotTitle(slot, model, KeyNames());
}

std::string slotTitle(int slot, const InventoryModel& model, const KeyNames& names) {
    std::string title = "Slot " + std::to_string(slot) + "  ";
    if (model.empty()) {
        return title + "none";
    }
    if (model.size() < 3 || neverTaps(model)) {
        return title + "(damaged)";
    }
    const InventoryDisplay shown = displayOf(model, names);
    if (shown.shift) {
        title += "Shift+";
    }
    // The pop-up shows "Select" exactly for a code without a label.
    return title + (shown.title == select ? std::string("(no key)") : shown.title);
}

} // namespace tarnic
