#include "support/catalogue/AbilityRows.h"

#include "support/catalogue/CatalogueRecords.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string>

namespace tarnic::test {

namespace {

std::vector<std::string_view> split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        if (end > start || separator == '\t') {
            parts.push_back(text.substr(start, end - start));
        }
        start = end + 1;
    }
    return parts;
}

const AbilityRecord& (*recordNamed(std::string_view name))() {
    for (const NamedRecord& named : namedRecords()) {
        if (named.name == name) {
            return named.record;
        }
    }
    ADD_FAILURE() << "abilities.tsv names " << name << ", which is no record's name";
    return nullptr;
}

std::vector<AbilityRow> readRows() {
    // The rows point into the text, which lives as long as the program.
    static const std::string text = [] {
        std::ifstream file(TARNIC_ABILITY_TABLE, std::ios::binary);
        std::ostringstream contents;
        contents << file.rdbuf();
        return contents.str();
    }();
    std::vector<AbilityRow> rows;
    for (const std::string_view line : split(text, '\n')) {
        if (line.empty() || line.starts_with('#')) {
            continue;
        }
        // name of the record, name, owner ("-" for none), key, sections, hotkey lines, table
        const std::vector<std::string_view> columns = split(line, '\t');
        if (columns.size() != 7) {
            ADD_FAILURE() << "abilities.tsv: not seven columns: " << line;
            continue;
        }
        AbilityRow row{static_cast<int>(rows.size()) + 1,
                       recordNamed(columns[0]),
                       columns[1],
                       columns[2] == "-" ? std::nullopt : std::optional(columns[2]),
                       columns[3],
                       split(columns[4], ' '),
                       split(columns[5], ' ')};
        if (row.record != nullptr) {
            rows.push_back(std::move(row));
        }
    }
    return rows;
}

} // namespace

const std::vector<AbilityRow>& abilityRows() {
    static const std::vector<AbilityRow> rows = readRows();
    return rows;
}

} // namespace tarnic::test
