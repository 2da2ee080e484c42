#pragma once

#include "core/record/AbilityRecord.h"

#include <optional>
#include <string_view>

namespace tarnic {

// Gives one record the key selected in the hotkey pop-up. With no selected item the record's
// "new hotkey" is removed (absent, not empty) and "new edit" is filled with the pop-up's empty
// title. No conflict check: any number of abilities may share a key.
void assignKey(AbilityRecord& record, std::optional<std::string_view> selectedTitle);

} // namespace tarnic
