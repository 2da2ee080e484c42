#pragma once

#include "core/editor/GridLetters.h"
#include "core/record/AbilityRecord.h"

#include <cstddef>
#include <vector>

namespace tarnic {

// The general commands and Repair open every list and are never laid out. The test is on the
// position, not on the record.
inline constexpr std::size_t kFirstLaidOutIndex = 7;

// Lays out every unit and hero ability on Q W E R: within each run of consecutive records with
// the same owner the first gets Q, the second W, the third E, the fourth R and every later one Q
// again. Records before kFirstLaidOutIndex keep what they have. The previous owner starts as ""
// so a first laid-out record whose owner is "" continues that run; a missing owner equals only
// another missing owner.
void allQWER(std::vector<AbilityRecord>& list);
// The same with other letters in place of Q, W, E and R (gridLettersOf), by the same rule: the
// fifth and later abilities of a run get the first letter again.
void allQWER(std::vector<AbilityRecord>& list, const GridLetters& letters);

} // namespace tarnic
