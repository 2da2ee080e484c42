#pragma once

#include "core/record/AbilityRecord.h"

#include <string>

namespace tarnic {

// The picture shown for an ability without an owner.
inline constexpr char kEmptyPicture[] = "empty";

// What the detail area shows for the selected record.
struct SelectionDetail {
    std::string spellImage;  // picture name of the ability
    std::string parentImage; // picture name of the owner, or "empty"
    std::string parentLbl;   // owner's name, "" without owner
    std::string popupTitle;  // title to select in the hotkey pop-up
    std::string defHotkey;   // "Default hotkey < X >"
    std::string spellLbl;    // ability's name
};

// The hotkey pop-up shows the key an ability has now: the player's choice when there is one,
// else the game's default. A record without "new hotkey" (or without "def hotkey" when it is
// needed) is broken and ends the program.
const std::string& popupTitle(const AbilityRecord& record);

// "Default hotkey < " + key + " >".
std::string defaultHotkeyLine(const std::string& key);

// The detail of a record; a record without "name" or "def hotkey" ends the program.
SelectionDetail selectionDetail(const AbilityRecord& record);

} // namespace tarnic
