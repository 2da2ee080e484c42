#pragma once

#include "platform/x11/KeymapRows.h"

#include <array>
#include <vector>

namespace tarnic::x11 {

// One keycode for each inventory slot's keypad key, in slot order; 0 where there is none.
using SlotKeycodes = std::array<unsigned, 6>;

// The keysym of the keypad digit that slot `slotIndex` (0 to 5, slot order) taps.
Keysym keypadDigitOfSlot(std::size_t slotIndex);

struct KeycodeMapping {
    unsigned keycode = 0;
    Keysym keysym = kNoSymbol; // kNoSymbol empties the keycode
    bool operator==(const KeycodeMapping&) const = default;
};

// What a claim of the keypad keycodes does, decided without touching the server.
struct KeypadClaimPlan {
    // Each slot's keycode once the plan is carried out; 0 where no keycode was left.
    SlotKeycodes keycodes{};
    // Keycodes that hold their digit already (ours, or leftovers of an earlier run) and stay.
    std::vector<unsigned> kept;
    // Leftovers of an earlier run that hold a digit this claim puts elsewhere: emptied, so that
    // no digit ends up on two keycodes.
    std::vector<unsigned> cleared;
    // Free keycodes given their slot's digit.
    std::vector<KeycodeMapping> claimed;

    // The keymap changes to make: the emptied leftovers, then the new claims.
    std::vector<KeycodeMapping> mappingChanges() const;
};

// Decides a claim from the keymap as it is now, the keycodes this process holds (`current`), the
// keycodes the root window's record names (`recorded`) and the keycodes in the modifier map.
// A slot keeps its own keycode, else the recorded one, when that still holds exactly its digit.
// The other slots get free keycodes (no keysym, not a modifier), from the top of the range
// down, keycodes the key table names for a physical key last, so that a binding on such a key
// keeps working as long as possible.
KeypadClaimPlan planKeypadClaim(const KeymapRows& keymap, const SlotKeycodes& current,
                                const SlotKeycodes& recorded,
                                const std::vector<unsigned>& modifierKeycodes);

// The keycodes that still hold exactly their slot's digit; the others become 0.
SlotKeycodes keycodesStillHeld(const KeymapRows& keymap, const SlotKeycodes& keycodes);

// What giving the keycodes back does.
struct KeypadReleasePlan {
    // Keycodes of ours that still hold their digit: emptied. The others are someone else's now.
    std::vector<unsigned> cleared;
    // The record with our keycodes taken out (another instance may have recorded others).
    SlotKeycodes record{};
};

KeypadReleasePlan planKeypadRelease(const KeymapRows& keymap, const SlotKeycodes& keycodes,
                                    const SlotKeycodes& recorded);

} // namespace tarnic::x11
