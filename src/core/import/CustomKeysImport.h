#pragma once

#include "core/import/ImportReport.h"
#include "core/record/AbilityRecord.h"

#include <string_view>
#include <vector>

namespace tarnic {

// Reads a CustomKeys.txt text (readHotkeyFile) into the working list: the inverse of the export.
//
// For each ability, in list order:
// 1. When the file holds the ability's "default" entry (every Hotkey=, Unhotkey= and
//    Researchhotkey= line of it, with the same key, and not under the template's own comment
//    where that differs from the default's), its choice is cleared.
// 2. Otherwise its key is read where its template ("for edit") holds the marker, section by
//    section, line by line (HotkeyPlaces). The key is that of the first place the file holds; a
//    place missing from the file, or holding another key, does not stop the reading (the editor
//    keeps one key per ability, and the first place is the one that casts it). When the template
//    filled with that key is the "default" text word for word the choice is cleared, otherwise
//    the key is set as the hotkey pop-up sets it (assignKey).
// 3. An ability the file holds no key for is left as it is.
// Step 1 keeps the abilities whose default entry holds other keys than their default key (Call to
// Arms' off key W, Ensnare's E, Cargo Load's L) untouched when the file is the game's own.
//
// Section names and line names ("Hotkey=", the tip of a joined line) are read whatever their case,
// as the game reads them: a file written all in lower case reads as the same file in the
// catalogue's spelling. Values are not names: the text of a tip is matched as it is.
// A section the file holds more than once is handed out as SectionOccurrences says.
// A file none of whose sections an ability of the list writes changes nothing.
ImportReport importCustomKeys(std::vector<AbilityRecord>& list, std::string_view text);

} // namespace tarnic
