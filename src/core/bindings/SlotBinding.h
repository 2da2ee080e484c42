#pragma once

#include <cstddef>
#include <cstdint>

namespace tarnic {

// Modifier codes a binding can hold: Shift's virtual key code, or none.
inline constexpr std::int64_t kShiftModifier = 56;
inline constexpr std::int64_t kNoModifier = 0;
// Trigger code of a binding whose pop-up title names no key ("Select").
inline constexpr std::int64_t kNoKey = -1;

// One inventory slot's binding: a key press of `key`, with `modifier` as the last modifier event
// (or whatever is held, for kNoModifier), taps slot `slot`'s keypad key.
//
// The values are the stored ones, never narrowed or checked: a store edited by hand can hold a
// slot the game does not have (nothing taps), codes no key press can equal, or a slot other than
// the one it is stored under (that slot taps).
struct SlotBinding {
    std::int64_t slot = 0;
    std::int64_t modifier = kNoModifier;
    std::int64_t key = kNoKey;
    // How many of slot, modifier and key the stored binding held: 3 unless it was cut short
    // outside the program. The values it lacks cannot be read: reading one ends the program (see
    // modifierOf and keyOf).
    std::size_t held = 3;

    bool isCutShort() const { return held < 3; }
    bool operator==(const SlotBinding&) const = default;
};

// The binding's modifier and key; reading one the binding does not hold ends the program with an
// index out of range, naming how many values it holds.
std::int64_t modifierOf(const SlotBinding& binding);
std::int64_t keyOf(const SlotBinding& binding);

} // namespace tarnic
