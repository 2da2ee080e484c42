#pragma once

#include "core/record/AbilityRecord.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarnic {

// The ability blocks of the hotkey file, in list order: for every record a line feed, then its
// "new edit" text when the player gave it a key, else its "default" text. Nothing else is added:
// no separator but that line feed, and none after the last block.
// A record whose "new edit" is missing, or is empty while "default" is missing, is broken and
// ends the program.
std::string blockList(const std::vector<AbilityRecord>& list);

// The whole CustomKeys.txt text: the template with every marker replaced by the block list.
// Everything else in the template reaches the file byte for byte.
std::string exportText(const std::vector<AbilityRecord>& list, std::string_view templateText);

} // namespace tarnic
