#pragma once

#include "core/record/AbilityRecord.h"

#include <string>
#include <vector>

namespace tarnic {

// The 160 abilities in catalogue order, built once on first use and never changed.
// Index i is row i + 1 of the ability table; indices 0 to 6 are the general commands and
// Repair, which have no owner. Tests reach each record by its name (tests/support/catalogue).
const std::vector<AbilityRecord>& all_data();

} // namespace tarnic
