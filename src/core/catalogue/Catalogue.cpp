#include "core/catalogue/Catalogue.h"

#include "core/catalogue/HotkeyMarking.h"
#include "core/catalogue/tables/AbilityTables.h"

#include <span>

namespace tarnic {

namespace {

AbilityRecord recordOf(const catalogue::AbilityEntry& entry) {
    AbilityRecord record;
    record[name_spell] = entry.name;
    if (entry.parent) {
        record[name_parent] = *entry.parent;
    }
    record[def] = entry.defaultText;
    record[for_edit] = entry.forEdit ? std::string(*entry.forEdit)
                                     : catalogue::markHotkeyValues(entry.defaultText);
    record[new_edit] = "";
    record[def_hotkey] = entry.defHotkey;
    record[new_hotkey] = "";
    return record;
}

std::vector<AbilityRecord> buildCatalogue() {
    using namespace catalogue;
    const std::span<const AbilityEntry> tables[] = {
        generalCommandEntries(),
        humanEntries(),
        orcEntries(),
        nightElfEntries(),
        undeadEntries(),
        neutralHeroEntries(),
        tinkerAlchemistFirelordEntries(),
        goblinUnitEntries(),
    };
    std::vector<AbilityRecord> records;
    for (const auto& table : tables) {
        for (const AbilityEntry& entry : table) {
            records.push_back(recordOf(entry));
        }
    }
    return records;
}

} // namespace

const std::vector<AbilityRecord>& all_data() {
    static const std::vector<AbilityRecord> records = buildCatalogue();
    return records;
}

} // namespace tarnic
