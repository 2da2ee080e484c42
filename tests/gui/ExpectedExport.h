#pragma once

#include "core/record/AbilityRecord.h"

#include <string>
#include <vector>

namespace tarnic::testing {

// The shipped template, read from the source tree.
std::string shippedTemplate();

// What the exported file must hold for `list` and `templateText`, worked out here step by step
// from the records' fields (not through the program's export code).
std::string expectedExport(const std::vector<AbilityRecord>& list, const std::string& templateText);

// A record's "for edit" with every marker replaced by `key`, worked out here.
std::string filledByHand(const AbilityRecord& record, const std::string& key);

} // namespace tarnic::testing
