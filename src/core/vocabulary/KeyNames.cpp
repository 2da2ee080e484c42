#include "core/vocabulary/KeyNames.h"

#include "core/vocabulary/KeyCodes.h"
#include "core/vocabulary/KeysymLabel.h"

namespace tarnic {

KeyNames::KeyNames() : names_(key_codes()) {
    for (const auto& entry : names_) {
        fromLayout_[entry.first] = false;
    }
}

KeyNames KeyNames::fromLayout(const KeysymLookup& keysymAt) {
    KeyNames names;
    std::map<int, std::string> printed;
    for (const auto& [code, usName] : key_codes()) {
        if (const std::optional<std::uint32_t> keysym = keysymAt(code)) {
            if (std::optional<std::string> label = keysymLabel(*keysym)) {
                printed[code] = std::move(*label);
            }
        }
    }
    // Each round gives back the US name to every position whose printed name is not its own
    // alone, until none is left: at most one round per key, as every round takes one away.
    bool shared = true;
    while (shared && !printed.empty()) {
        std::map<std::string, int> uses;
        for (const auto& [code, usName] : key_codes()) {
            const auto it = printed.find(code);
            ++uses[it != printed.end() ? it->second : usName];
        }
        shared = false;
        for (auto it = printed.begin(); it != printed.end();) {
            if (uses[it->second] > 1) {
                it = printed.erase(it);
                shared = true;
            } else {
                ++it;
            }
        }
    }
    for (const auto& [code, label] : printed) {
        names.names_[code] = label;
        names.fromLayout_[code] = true;
    }
    return names;
}

std::optional<std::string> KeyNames::nameOf(std::int64_t code) const {
    for (const auto& [each, name] : names_) {
        if (each == code) {
            return name;
        }
    }
    return std::nullopt;
}

std::optional<int> KeyNames::codeOf(std::string_view name) const {
    for (const auto& [code, each] : names_) {
        if (each == name) {
            return code;
        }
    }
    return std::nullopt;
}

bool KeyNames::isLayoutName(int code) const {
    const auto it = fromLayout_.find(code);
    return it != fromLayout_.end() && it->second;
}

} // namespace tarnic
