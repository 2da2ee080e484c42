#pragma once

#include "core/remapper/TapListener.h"
#include "core/vocabulary/KeyNames.h"

#include <string>

namespace tarnic {

// What the line under the slots says of the last tap: the key seen, the slot it used and the
// keypad key that slot taps, "Shift+Z → Slot 1 (keypad 7)", the key named by the layout.
std::string tapText(const SlotTap& tap, const KeyNames& names);

// Whether the game was found at the last look: "Warcraft III is running" or "Warcraft III is not
// running".
std::string gameStatusText(bool running);

// Before the first look for the game.
std::string gameStatusUnknownText();

} // namespace tarnic
