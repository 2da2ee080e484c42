#include "platform/x11/KeypadClaimPlanner.h"

#include "core/remapper/SlotKeys.h"
#include "platform/x11/X11KeyCodes.h"

#include <X11/keysym.h>

#include <algorithm>
#include <optional>

namespace tarnic::x11 {

namespace {

// The digit a keypad key types, by its macOS virtual key code (keypad 8 and 9 come after a gap).
std::optional<int> keypadDigitOfMacKeyCode(int macKeyCode) {
    if (macKeyCode >= 82 && macKeyCode <= 89) {
        return macKeyCode - 82;
    }
    if (macKeyCode == 91 || macKeyCode == 92) {
        return macKeyCode - 83;
    }
    return std::nullopt;
}

bool contains(const std::vector<unsigned>& keycodes, unsigned keycode) {
    return std::find(keycodes.begin(), keycodes.end(), keycode) != keycodes.end();
}

// Keycodes free to take, best first: from the top of the range down, since physical keys
// cluster at the bottom; keycodes that the key table names for a physical key last.
std::vector<unsigned> freeKeycodes(const KeymapRows& keymap,
                                   const std::vector<unsigned>& modifiers) {
    std::vector<unsigned> first;
    std::vector<unsigned> last;
    for (int keycode = keymap.maxKeycode(); keycode >= keymap.minKeycode(); --keycode) {
        const auto k = static_cast<unsigned>(keycode);
        if (!keymap.unused(k) || contains(modifiers, k)) {
            continue;
        }
        (macKeyCodeOfXKeycode(k).has_value() ? last : first).push_back(k);
    }
    first.insert(first.end(), last.begin(), last.end());
    return first;
}

} // namespace

Keysym keypadDigitOfSlot(std::size_t slotIndex) {
    const std::optional<std::uint16_t> key =
        keypadKeyOfSlot(static_cast<std::int64_t>(slotIndex) + 1);
    const std::optional<int> digit = key ? keypadDigitOfMacKeyCode(*key) : std::nullopt;
    return digit ? XK_KP_0 + static_cast<Keysym>(*digit) : kNoSymbol;
}

std::vector<KeycodeMapping> KeypadClaimPlan::mappingChanges() const {
    std::vector<KeycodeMapping> changes;
    for (const unsigned keycode : cleared) {
        changes.push_back({keycode, kNoSymbol});
    }
    changes.insert(changes.end(), claimed.begin(), claimed.end());
    return changes;
}

KeypadClaimPlan planKeypadClaim(const KeymapRows& keymap, const SlotKeycodes& current,
                                const SlotKeycodes& recorded,
                                const std::vector<unsigned>& modifierKeycodes) {
    KeypadClaimPlan plan;
    SlotKeycodes& next = plan.keycodes;
    const auto taken = [&](unsigned keycode) {
        return std::find(next.begin(), next.end(), keycode) != next.end();
    };
    // Ours already, or a leftover of an earlier run that still holds its digit.
    for (std::size_t i = 0; i < next.size(); ++i) {
        for (const unsigned candidate : {current[i], recorded[i]}) {
            if (candidate != 0 && !taken(candidate) &&
                keymap.holdsOnly(candidate, keypadDigitOfSlot(i))) {
                next[i] = candidate;
                plan.kept.push_back(candidate);
                break;
            }
        }
    }
    // A recorded leftover not reused (a digit this process already has elsewhere) is cleared.
    for (std::size_t i = 0; i < next.size(); ++i) {
        if (recorded[i] != 0 && !taken(recorded[i]) &&
            keymap.holdsOnly(recorded[i], keypadDigitOfSlot(i))) {
            plan.cleared.push_back(recorded[i]);
        }
    }
    const std::vector<unsigned> free = freeKeycodes(keymap, modifierKeycodes);
    auto candidate = free.begin();
    for (std::size_t i = 0; i < next.size(); ++i) {
        if (next[i] != 0) {
            continue;
        }
        while (candidate != free.end() && taken(*candidate)) {
            ++candidate;
        }
        if (candidate == free.end()) {
            break;
        }
        next[i] = *candidate++;
        plan.claimed.push_back({next[i], keypadDigitOfSlot(i)});
    }
    return plan;
}

SlotKeycodes keycodesStillHeld(const KeymapRows& keymap, const SlotKeycodes& keycodes) {
    SlotKeycodes held = keycodes;
    for (std::size_t i = 0; i < held.size(); ++i) {
        if (held[i] != 0 && !keymap.holdsOnly(held[i], keypadDigitOfSlot(i))) {
            held[i] = 0;
        }
    }
    return held;
}

KeypadReleasePlan planKeypadRelease(const KeymapRows& keymap, const SlotKeycodes& keycodes,
                                    const SlotKeycodes& recorded) {
    KeypadReleasePlan plan;
    plan.record = recorded;
    for (std::size_t i = 0; i < keycodes.size(); ++i) {
        const unsigned keycode = keycodes[i];
        if (keycode != 0 && keymap.holdsOnly(keycode, keypadDigitOfSlot(i))) {
            plan.cleared.push_back(keycode);
        }
        if (plan.record[i] == keycode) {
            plan.record[i] = 0;
        }
    }
    return plan;
}

} // namespace tarnic::x11
