// libFuzzer target: any bytes as a CustomKeys.txt imported into the full catalogue list.
// Beyond crashes and sanitizer reports it checks what the import promises whatever the file:
// the list keeps its length, the counts add up, and a file that holds none of the list's
// sections changes nothing.
#include "core/catalogue/Catalogue.h"
#include "core/import/CustomKeysImport.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

void check(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "import broke its promise: %s\n", what);
        std::abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<tarnic::AbilityRecord>& catalogue = tarnic::all_data();
    std::vector<tarnic::AbilityRecord> list = catalogue;
    const tarnic::ImportReport report =
        tarnic::importCustomKeys(list, std::string_view(reinterpret_cast<const char*>(data), size));

    check(list.size() == catalogue.size(), "the list changed its length");
    check(report.unknownSections <= report.fileSections, "more unknown sections than sections");
    check(report.changed <= report.read, "more abilities changed than read");
    check(report.read + report.notInFile <= list.size(), "more abilities counted than listed");
    check(report.holdsCatalogue() || list == catalogue,
          "a file without our sections changed the list");
    // The player's message is built from every report; it must never be empty.
    check(!tarnic::importSummary(report).empty(), "empty summary");
    (void)tarnic::importDetails(report);
    return 0;
}
