#include "core/import/SectionOccurrences.h"

#include <algorithm>

namespace tarnic {

SectionOccurrences::SectionOccurrences(const std::vector<HotkeyFileSection>& sections) {
    for (const HotkeyFileSection& section : sections) {
        byId_[section.id].push_back(&section);
    }
}

std::vector<const HotkeyFileSection*>
SectionOccurrences::pick(const std::vector<std::string>& ids) const {
    std::vector<const HotkeyFileSection*> picked;
    std::map<std::string_view, std::size_t, AsciiCaseLess> seen;
    for (const std::string& id : ids) {
        const std::size_t again = seen[id]++;
        const auto found = byId_.find(id);
        if (found == byId_.end()) {
            picked.push_back(nullptr);
            continue;
        }
        const auto taken = taken_.find(id);
        const std::size_t next = (taken == taken_.end() ? 0 : taken->second) + again;
        picked.push_back(found->second[std::min(next, found->second.size() - 1)]);
    }
    return picked;
}

void SectionOccurrences::take(const std::vector<std::string>& ids) {
    for (const std::string& id : ids) {
        if (contains(id)) {
            ++taken_[id];
        }
    }
}

} // namespace tarnic
