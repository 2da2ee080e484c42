#pragma once

#include <cstdint>
#include <optional>

namespace tarnic {

// The keypad key the game reads for each inventory slot, as a virtual key code. Slots run in
// reading order over the keypad's left two columns: 7 8 / 4 5 / 1 2.
std::optional<std::uint16_t> keypadKeyOfSlot(std::int64_t slot);

} // namespace tarnic
