#include "core/editor/TapText.h"

#include "core/editor/InventoryBinding.h"

#include <array>
#include <optional>

namespace tarnic {

namespace {

// The keypad digit the game reads for each slot: 7 8 / 4 5 / 1 2.
constexpr std::array<char, 6> kKeypadDigits = {'7', '8', '4', '5', '1', '2'};

} // namespace

std::string tapText(const SlotTap& tap, const KeyNames& names) {
    std::string text = tap.modifier != kNoModifier ? "Shift+" : "";
    text += names.nameOf(tap.keyCode).value_or("key " + std::to_string(tap.keyCode));
    text += " \u2192 Slot " + std::to_string(tap.slot);
    if (tap.slot >= 1 && tap.slot <= 6) {
        text += " (keypad ";
        text += kKeypadDigits[static_cast<std::size_t>(tap.slot - 1)];
        text += ')';
    }
    return text;
}

std::string gameStatusText(bool running) {
    return running ? "Warcraft III is running" : "Warcraft III is not running";
}

std::string gameStatusUnknownText() {
    return "Looking for Warcraft III\u2026";
}

} // namespace tarnic
