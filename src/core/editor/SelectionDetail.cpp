#include "core/editor/SelectionDetail.h"

namespace tarnic {

const std::string& popupTitle(const AbilityRecord& record) {
    const std::string& chosen = requiredField(record, new_hotkey);
    return chosen.empty() ? requiredField(record, def_hotkey) : chosen;
}

std::string defaultHotkeyLine(const std::string& key) {
    return "Default hotkey < " + key + " >";
}

SelectionDetail selectionDetail(const AbilityRecord& record) {
    SelectionDetail detail;
    detail.spellImage = requiredField(record, name_spell);
    // An owner that is present but empty is still an owner: its picture is looked up by "".
    if (const std::string* owner = optionalField(record, name_parent)) {
        detail.parentImage = *owner;
        detail.parentLbl = *owner;
    } else {
        detail.parentImage = kEmptyPicture;
    }
    detail.popupTitle = popupTitle(record);
    detail.defHotkey = defaultHotkeyLine(requiredField(record, def_hotkey));
    detail.spellLbl = requiredField(record, name_spell);
    return detail;
}

} // namespace tarnic
