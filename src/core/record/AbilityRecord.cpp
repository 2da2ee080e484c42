#include "core/record/AbilityRecord.h"

#include "core/fatal/Fatal.h"

namespace tarnic {

std::string replaceAll(std::string_view text, std::string_view what, std::string_view with) {
    if (what.empty()) {
        return std::string(text);
    }
    std::string out;
    out.reserve(text.size());
    std::size_t from = 0;
    for (std::size_t at = text.find(what); at != std::string_view::npos;
         at = text.find(what, from)) {
        out.append(text.substr(from, at - from));
        out.append(with);
        from = at + what.size();
    }
    out.append(text.substr(from));
    return out;
}

const std::string* optionalField(const AbilityRecord& record, std::string_view key) {
    const auto it = record.find(key);
    return it == record.end() ? nullptr : &it->second;
}

const std::string& requiredField(const AbilityRecord& record, std::string_view key) {
    const std::string* value = optionalField(record, key);
    if (value == nullptr) {
        fatalError(kNilUnwrap, std::string("record has no \"") + std::string(key) + "\"");
    }
    return *value;
}

void fillTemplate(AbilityRecord& record, std::string_view key) {
    std::string filled = replaceAll(requiredField(record, for_edit), mark, key);
    record[new_edit] = std::move(filled);
    record[new_hotkey] = std::string(key);
}

} // namespace tarnic
