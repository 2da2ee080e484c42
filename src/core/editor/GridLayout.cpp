#include "core/editor/GridLayout.h"

#include "core/fatal/Fatal.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tarnic {

namespace {

std::optional<std::string> ownerOf(const AbilityRecord& record) {
    const std::string* owner = optionalField(record, name_parent);
    return owner == nullptr ? std::nullopt : std::optional<std::string>(*owner);
}

} // namespace

void allQWER(std::vector<AbilityRecord>& list) {
    allQWER(list, qwerLetters());
}

void allQWER(std::vector<AbilityRecord>& list, const GridLetters& letters) {
    std::optional<std::string> previousOwner = std::string();
    std::int64_t run = 0;
    for (std::size_t i = kFirstLaidOutIndex; i < list.size(); ++i) {
        AbilityRecord& record = list[i];
        fillTemplate(record, letters[0]);
        std::optional<std::string> owner = ownerOf(record);
        if (owner != previousOwner) {
            run = 0;
        } else {
            if (__builtin_add_overflow(run, 1, &run)) {
                fatalError("Arithmetic overflow", "grid layout run counter");
            }
            switch (run) {
            case 1:
                fillTemplate(record, letters[1]);
                break;
            case 2:
                fillTemplate(record, letters[2]);
                break;
            case 3:
                fillTemplate(record, letters[3]);
                break;
            default:
                // There is no fifth letter: the fifth and later abilities keep the first.
                break;
            }
        }
        previousOwner = std::move(owner);
    }
}

} // namespace tarnic
