#pragma once

#include "core/record/AbilityRecord.h"

#include <optional>
#include <string>
#include <vector>

namespace tarnic::test {

// A well-formed record in the shape of the catalogue's: a one-section block whose hotkey lines
// all hold `defKey`, and its template with a marker at each of them.
inline AbilityRecord makeRecord(const std::string& name, std::optional<std::string> owner,
                                const std::string& defKey, const std::string& id = "Axxx") {
    const std::string head = "// " + name + "\n[" + id + "]\nTip=" + name + "\nHotkey=";
    AbilityRecord record{{name_spell, name},
                         {def, head + defKey + "\nResearchhotkey=" + defKey},
                         {for_edit, head + mark + "\nResearchhotkey=" + mark},
                         {def_hotkey, defKey},
                         {new_hotkey, ""},
                         {new_edit, ""}};
    if (owner) {
        record[name_parent] = *owner;
    }
    return record;
}

// Seven owner-less general commands, as every list begins.
inline std::vector<AbilityRecord> generalCommands() {
    std::vector<AbilityRecord> list;
    const char* names[] = {"Move", "Attack", "Stop", "Hold", "Patrol", "Attack Ground", "Repair"};
    const char* keys[] = {"M", "A", "S", "H", "P", "G", "R"};
    for (int i = 0; i < 7; ++i) {
        list.push_back(makeRecord(names[i], std::nullopt, keys[i], "Cmd" + std::to_string(i)));
    }
    return list;
}

} // namespace tarnic::test
