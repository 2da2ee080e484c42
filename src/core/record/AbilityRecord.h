#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tarnic {

// Names the formats fix. A few identifiers are spelled as the stored format and the file formats
// name them, not in the program's own style (kCamelCase constants, camelCase functions), so that
// the code reads side by side with the store and the files:
// - the record keys below (the dictionaries of the stored list "mainDic"): name_spell, name_parent,
//   def, def_hotkey, new_hotkey, for_edit, new_edit;
// - mark, the hotkey marker in the stored "for edit" texts and in the export template; custKs,
//   the export file's name; all_data, the catalogue the stored list starts from;
// - in core/vocabulary/KeyCodes.h: key_codes and key_codes_flag (the virtual key codes the store
//   holds), keyboardKeys, keyboardKeysNum and select (the pop-up titles bindings are chosen
//   by), war3ID (the game's identifier);
// - the store's keys "mainDic" and "inventoryModel1" to "inventoryModel6".
// Every other name says what it is, in the program's style.

// One ability as the hotkey file knows it: a string-to-string dictionary read through the key
// constants below. A std::map keeps a missing key (the general commands have no owner) apart
// from an empty value, and stores and reads back as a plain dictionary.
using AbilityRecord = std::map<std::string, std::string, std::less<>>;

// Record keys.
inline constexpr char name_spell[] = "name";
inline constexpr char name_parent[] = "name parent";
inline constexpr char def[] = "default";
inline constexpr char def_hotkey[] = "def hotkey";
inline constexpr char new_hotkey[] = "new hotkey";
inline constexpr char for_edit[] = "for edit";
inline constexpr char new_edit[] = "new edit";

// The hotkey-position marker: U+2714 HEAVY CHECK MARK followed by U+FE0E VARIATION SELECTOR-15.
// Always searched for as the whole two-code-point string; a lone U+2714 is not a marker.
inline constexpr char mark[] = "\xE2\x9C\x94\xEF\xB8\x8E";
// The name the save dialog proposes for the game's hotkey override file.
inline constexpr char custKs[] = "CustomKeys";

// Literal, left-to-right, non-overlapping replacement of every `what` in `text`.
// An empty `what` leaves the text as it is.
std::string replaceAll(std::string_view text, std::string_view what, std::string_view with);

// The value under `key`, or nullptr when the record has no such key.
const std::string* optionalField(const AbilityRecord& record, std::string_view key);

// The value under `key`; a missing key is a broken record and ends the program.
const std::string& requiredField(const AbilityRecord& record, std::string_view key);

// The one rule by which a hotkey is set: "new edit" becomes "for edit" with every marker
// replaced by `key`, and "new hotkey" becomes `key`. A record without "for edit" ends the program.
void fillTemplate(AbilityRecord& record, std::string_view key);

} // namespace tarnic
