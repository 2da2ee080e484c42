#pragma once

#include "core/platform/AccessibilityTrust.h"

#include <string>

namespace tarnic {

// The line under the inventory slots that says whether the inventory keys can work:
// "Inventory keys active" when the program is trusted to watch other applications' keys,
// otherwise what stands in the way, in a player's words.
std::string inventoryStatusText(bool trusted, UntrustedReason reason);

} // namespace tarnic
