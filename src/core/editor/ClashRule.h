#pragma once

#include "core/record/AbilityRecord.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarnic {

// The general commands (Move, Attack, Stop, Hold, Patrol, Attack Ground) open every list and
// belong to every unit. Repair, the seventh record without an owner, is not one of them. The
// test is on the position, as for the grid layout.
inline constexpr std::size_t kGeneralCommandCount = 6;

// The key an ability uses in the game: the player's choice, else the default key. "" when it
// has neither. A view into the record.
std::string_view keyInForce(const AbilityRecord& record);

// One clash: two abilities that one unit has and that use the same key. `first` < `second`,
// both list positions.
struct Clash {
    std::size_t first = 0;
    std::size_t second = 0;
    bool operator==(const Clash&) const = default;
};

// Whether the player chose the ability's key (by hand, by the grid layout or by an import), as
// opposed to the game's default key being in force.
bool keyIsChosen(const AbilityRecord& record);

// Every clash of the list, ordered by `first`, then `second`. Two abilities clash when they use
// the same key, one unit has both, and the player chose at least one of the two keys: they
// belong to the same owner ("name parent"), or one is a general command and the other belongs to
// an owner or is a general command too. The game's own keys never clash with each other: the
// game ships them that way (Attack Ground and the Shaman's Purge share G), and a warning the
// player did nothing to cause would only alarm him. Abilities without an owner past the general
// commands (Repair) clash with nothing. Three abilities on one key are three clashes.
std::vector<Clash> findClashes(const std::vector<AbilityRecord>& list);

// For every list position, the positions it clashes with, in list order.
std::vector<std::vector<std::size_t>> clashPartners(const std::vector<Clash>& clashes,
                                                    std::size_t listSize);

} // namespace tarnic
