#pragma once

#include "core/bindings/SlotBinding.h"
#include "core/vocabulary/KeyNames.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarnic {

// What the inventory controls show for a binding.
struct InventoryDisplay {
    std::string title; // pop-up title: the bound key's label, or "Select"
    bool shift = false;
};

// An unbound slot shows "Select" and an unticked box. Otherwise the key's label (or "Select" when
// the code has none) and the box ticked for any modifier but 0. A binding cut short is broken and
// ends the program.
InventoryDisplay displayOf(const std::optional<SlotBinding>& binding);
// The same with the keys named by `names` (the layout's names) instead of their US names.
InventoryDisplay displayOf(const std::optional<SlotBinding>& binding, const KeyNames& names);

// The code of the key whose label is `title`, or kNoKey.
std::int64_t triggerCodeOf(std::string_view title);
// The code of the key that `names` names `title`, or kNoKey.
std::int64_t triggerCodeOf(std::string_view title, const KeyNames& names);

// The binding the controls describe for slot `editing` (1 to 6): [slot, modifier, key code].
// Any other slot (0: none chosen yet) gives nothing to keep.
std::optional<SlotBinding> bindingFrom(std::int64_t editing, std::string_view title, bool shift);
// The same for a pop-up whose titles are the keys' names in `names`.
std::optional<SlotBinding> bindingFrom(std::int64_t editing, std::string_view title, bool shift,
                                       const KeyNames& names);

// The title of slot button `slot` for the slot's binding, two spaces between the two parts:
// "Slot 1  Z", "Slot 1  Shift+Z" (any modifier but 0, as the Shift box shows it), "Slot 1  none"
// while unbound, and "Slot 1  (no key)" or "Slot 1  Shift+(no key)" for a binding that names no
// key of the key table ("Select" was picked): bound, but no key press can match it. A binding only
// a store edited by hand can hold shows "Slot 1  (damaged)": one that can never tap (a slot
// other than 1 to 6, or a trigger or modifier code outside the key codes 0 to 127, "Select"'s -1
// aside), and a binding cut short. The titles are made at start-up, which such a short binding
// must not end; showing it in the panel, or testing it at a key press, still does.
std::string slotTitle(int slot, const std::optional<SlotBinding>& binding);
// The same with the key named by `names`.
std::string slotTitle(int slot, const std::optional<SlotBinding>& binding, const KeyNames& names);

} // namespace tarnic
