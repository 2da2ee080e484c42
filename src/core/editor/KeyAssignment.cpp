#include "core/editor/KeyAssignment.h"

namespace tarnic {

void assignKey(AbilityRecord& record, std::optional<std::string_view> selectedTitle) {
    if (selectedTitle) {
        fillTemplate(record, *selectedTitle);
        return;
    }
    record.erase(std::string(new_hotkey));
    std::string filled = replaceAll(requiredField(record, for_edit), mark, "");
    record[new_edit] = std::move(filled);
}

} // namespace tarnic
