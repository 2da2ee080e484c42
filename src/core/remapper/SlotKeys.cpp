#include "core/remapper/SlotKeys.h"

#include <array>

namespace tarnic {

namespace {
constexpr std::array<std::uint16_t, 6> kSlotKeypadKeys = {
    89, // keypad 7
    91, // keypad 8
    86, // keypad 4
    87, // keypad 5
    83, // keypad 1
    84, // keypad 2
};
} // namespace

std::optional<std::uint16_t> keypadKeyOfSlot(std::int64_t slot) {
    if (slot < 1 || slot > static_cast<std::int64_t>(kSlotKeypadKeys.size())) {
        return std::nullopt;
    }
    return kSlotKeypadKeys[static_cast<std::size_t>(slot - 1)];
}

} // namespace tarnic
