#include "core/editor/ExportText.h"

namespace tarnic {

std::string blockList(const std::vector<AbilityRecord>& list) {
    std::string blocks;
    for (const AbilityRecord& record : list) {
        // A missing "new edit" is not an empty one: it takes the second branch and then has
        // nothing to give, which requiredField reports.
        const std::string* edited = optionalField(record, new_edit);
        blocks += '\n';
        if (edited != nullptr && edited->empty()) {
            blocks += requiredField(record, def);
        } else {
            blocks += requiredField(record, new_edit);
        }
    }
    return blocks;
}

std::string exportText(const std::vector<AbilityRecord>& list, std::string_view templateText) {
    return replaceAll(templateText, mark, blockList(list));
}

} // namespace tarnic
