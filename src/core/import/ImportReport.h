#pragma once

#include <cstddef>
#include <string>

namespace tarnic {

// What an import did, for the player's message.
struct ImportReport {
    // Section headers in the file, and how many of them no ability of the list writes.
    std::size_t fileSections = 0;
    std::size_t unknownSections = 0;
    // Abilities whose key the file gave, and how many of them it changed in the list.
    std::size_t read = 0;
    std::size_t changed = 0;
    // Abilities the file holds no key for (not there, or not as one letter); they kept what they
    // had.
    std::size_t notInFile = 0;
    // Read abilities that the file holds only in part (a section or a hotkey line missing), and
    // those whose places held different keys; both took the key of their first place found.
    std::size_t partial = 0;
    std::size_t mixed = 0;

    // Whether the file holds anything of the list at all; when it does not, nothing changed.
    bool holdsCatalogue() const { return fileSections > unknownSections; }

    bool operator==(const ImportReport&) const = default;
};

// "142 hotkeys read, 12 changed; 37 sections of the file are not in the catalogue and were left
// out." The part after the semicolon only when there are such sections.
std::string importSummary(const ImportReport& report);

// The rarer news, one sentence each, or "" when there is none: abilities without a key in the file,
// abilities only partly in it, abilities with different keys at their places.
std::string importDetails(const ImportReport& report);

} // namespace tarnic
