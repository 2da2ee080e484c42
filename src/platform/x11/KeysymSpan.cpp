#include "platform/x11/KeysymSpan.h"

#include <algorithm>

namespace tarnic::x11 {

namespace {

// XKB's canonical first key type: one level whatever the modifiers.
constexpr std::uint8_t kOneLevelType = 0;

std::uint8_t withGroupCount(std::uint8_t groupInfo, unsigned groups) {
    return static_cast<std::uint8_t>((groupInfo & 0xf0u) | (groups & 0x0fu));
}

} // namespace

std::pair<unsigned, unsigned> spanOf(const std::vector<KeycodeMapping>& mappings) {
    if (mappings.empty()) {
        return {0, 0};
    }
    const auto [low, high] = std::minmax_element(
        mappings.begin(), mappings.end(),
        [](const KeycodeMapping& a, const KeycodeMapping& b) { return a.keycode < b.keycode; });
    return {low->keycode, high->keycode};
}

bool applyMappings(KeySymSpan& span, const std::vector<KeycodeMapping>& mappings) {
    if (!std::all_of(mappings.begin(), mappings.end(),
                     [&](const KeycodeMapping& m) { return span.contains(m.keycode); })) {
        return false;
    }
    for (const KeycodeMapping& mapping : mappings) {
        KeySymEntry& entry = span.entries[mapping.keycode - span.first];
        if (mapping.keysym == kNoSymbol) {
            // As XKB itself empties a key: no group, types back to one-level, width kept.
            entry.types.fill(kOneLevelType);
            entry.groupInfo = withGroupCount(entry.groupInfo, 0);
            entry.syms.clear();
        } else {
            // The other groups' type slots are not read for a one-group key: left as they were.
            entry.types[0] = kOneLevelType;
            entry.groupInfo = withGroupCount(entry.groupInfo, 1);
            entry.width = 1;
            entry.syms = {mapping.keysym};
        }
    }
    return true;
}

} // namespace tarnic::x11
