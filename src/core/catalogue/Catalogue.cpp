#include "core/catalogue/Catalogue.h"

namespace tarnic {

// Placeholder until the record tables land: the catalogue is empty.
const std::vector<AbilityRecord>& all_data() {
    static const std::vector<AbilityRecord> records;
    return records;
}

} // namespace tarnic
