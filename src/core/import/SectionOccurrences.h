#pragma once

#include "core/import/AsciiCase.h"
#include "core/import/HotkeyFile.h"

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tarnic {

// The sections of a file by identifier, whatever its case, as the game finds them: [AOwk] and
// [aowk] are two occurrences of one section. A file may hold one identifier more than once: the
// export writes a section once per ability whose block holds it, and two abilities of the
// catalogue write the section of another (Mirror Image that of Wind Walk, Berserk with a key
// that of Resurrection). The abilities take such sections in file order, one each, as the export
// wrote them; once every one is taken, the next ability reads the last again, so that a file
// with one section serves every ability that writes it.
class SectionOccurrences {
public:
    explicit SectionOccurrences(const std::vector<HotkeyFileSection>& sections);

    bool contains(std::string_view id) const { return byId_.find(id) != byId_.end(); }

    // For each identifier of a block (in block order) the file section it reads, or nullptr
    // when the file has none. An identifier a block holds twice reads two sections.
    std::vector<const HotkeyFileSection*> pick(const std::vector<std::string>& ids) const;

    // Takes the sections pick gives for the same identifiers.
    void take(const std::vector<std::string>& ids);

private:
    std::map<std::string, std::vector<const HotkeyFileSection*>, AsciiCaseLess> byId_;
    std::map<std::string, std::size_t, AsciiCaseLess> taken_;
};

} // namespace tarnic
