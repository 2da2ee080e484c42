#pragma once

#include "core/record/AbilityRecord.h"

#include <optional>
#include <string_view>
#include <vector>

namespace tarnic::test {

// One row of the ability table: what the catalogue must hold at that row.
struct AbilityRow {
    int number;                       // row number, 1 to 160
    const AbilityRecord& (*record)(); // the record's named constant
    std::string_view name;
    std::optional<std::string_view> parent;
    std::string_view defHotkey;
    std::vector<std::string_view> sections;
    // The hotkey keys that begin a line, the same in every section.
    std::vector<std::string_view> hotkeyLines;
};

// The rows of tools/catalogue/abilities.tsv, the list the catalogue's tables are generated from,
// read once. A file that cannot be read or a row that does not fit fails the test that asks.
const std::vector<AbilityRow>& abilityRows();

} // namespace tarnic::test
