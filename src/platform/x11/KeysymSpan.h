#pragma once

#include "platform/x11/KeypadClaimPlanner.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tarnic::x11 {

// What XKB keeps for one keycode's keysyms: the key type of each group, the group count (low
// four bits of `groupInfo`, the out-of-range handling above them), the width (levels per group)
// and the keysyms, `width` for each group, group after group.
struct KeySymEntry {
    std::array<std::uint8_t, 4> types{};
    std::uint8_t groupInfo = 0;
    std::uint8_t width = 0;
    std::vector<Keysym> syms;
    bool operator==(const KeySymEntry&) const = default;
};

// The keysym entries of consecutive keycodes, from `first` on.
struct KeySymSpan {
    unsigned first = 0;
    std::vector<KeySymEntry> entries;

    unsigned last() const { return first + static_cast<unsigned>(entries.size()) - 1; }
    bool contains(unsigned keycode) const {
        return !entries.empty() && keycode >= first && keycode <= last();
    }
};

// The lowest and the highest keycode the mappings change; {0, 0} when there is none.
std::pair<unsigned, unsigned> spanOf(const std::vector<KeycodeMapping>& mappings);

// The span with each mapping carried out and every other keycode exactly as it was. A keycode
// given a keysym gets one group of the one-level type (XKB's type index 0) holding only that
// keysym; an emptied keycode gets no group and no keysym, its types reset to one-level. False,
// and the span untouched, when a mapping lies outside it.
bool applyMappings(KeySymSpan& span, const std::vector<KeycodeMapping>& mappings);

} // namespace tarnic::x11
