#include "core/editor/ClashRule.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace tarnic {

namespace {

bool isGeneralCommand(const std::vector<AbilityRecord>& list, std::size_t index) {
    return index < kGeneralCommandCount && optionalField(list[index], name_parent) == nullptr;
}

bool oneUnitHasBoth(const std::vector<AbilityRecord>& list, std::size_t a, std::size_t b) {
    const std::string* ownerA = optionalField(list[a], name_parent);
    const std::string* ownerB = optionalField(list[b], name_parent);
    if (ownerA != nullptr && ownerB != nullptr) {
        return *ownerA == *ownerB;
    }
    const bool generalA = isGeneralCommand(list, a);
    const bool generalB = isGeneralCommand(list, b);
    return (generalA && (generalB || ownerB != nullptr)) || (generalB && ownerA != nullptr);
}

} // namespace

bool keyIsChosen(const AbilityRecord& record) {
    const std::string* chosen = optionalField(record, new_hotkey);
    return chosen != nullptr && !chosen->empty();
}

std::string_view keyInForce(const AbilityRecord& record) {
    if (keyIsChosen(record)) {
        return *optionalField(record, new_hotkey);
    }
    const std::string* fallback = optionalField(record, def_hotkey);
    return fallback != nullptr ? std::string_view(*fallback) : std::string_view();
}

std::vector<Clash> findClashes(const std::vector<AbilityRecord>& list) {
    // Only abilities on one key can clash, so compare within each key's group; and only where
    // the player chose one of the two keys, so a group of the game's own keys is passed over.
    std::map<std::string_view, std::vector<std::size_t>> byKey;
    std::vector<bool> chosen(list.size());
    for (std::size_t i = 0; i < list.size(); ++i) {
        chosen[i] = keyIsChosen(list[i]);
        const std::string_view key = keyInForce(list[i]);
        if (!key.empty()) {
            byKey[key].push_back(i);
        }
    }
    std::vector<Clash> clashes;
    for (const auto& [key, positions] : byKey) {
        for (std::size_t a = 0; a < positions.size(); ++a) {
            for (std::size_t b = a + 1; b < positions.size(); ++b) {
                const std::size_t first = positions[a];
                const std::size_t second = positions[b];
                if ((chosen[first] || chosen[second]) && oneUnitHasBoth(list, first, second)) {
                    clashes.push_back({first, second});
                }
            }
        }
    }
    std::sort(clashes.begin(), clashes.end(), [](const Clash& x, const Clash& y) {
        return x.first != y.first ? x.first < y.first : x.second < y.second;
    });
    return clashes;
}

std::vector<std::vector<std::size_t>> clashPartners(const std::vector<Clash>& clashes,
                                                    std::size_t listSize) {
    std::vector<std::vector<std::size_t>> partners(listSize);
    for (const Clash& clash : clashes) {
        if (clash.first < listSize && clash.second < listSize) {
            partners[clash.first].push_back(clash.second);
            partners[clash.second].push_back(clash.first);
        }
    }
    for (std::vector<std::size_t>& row : partners) {
        std::sort(row.begin(), row.end());
    }
    return partners;
}

} // namespace tarnic
