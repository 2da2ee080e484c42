#include "core/import/CustomKeysImport.h"

#include "core/catalogue/HotkeyMarking.h"
#include "core/editor/KeyAssignment.h"
#include "core/import/AsciiCase.h"
#include "core/import/HotkeyPlaces.h"
#include "core/import/SectionOccurrences.h"

#include <algorithm>
#include <optional>
#include <set>

namespace tarnic {

namespace {

using Keys = std::vector<std::optional<char>>;

// An ability's two blocks, read once.
struct Shapes {
    BlockPlaces edit; // the template's places
    BlockPlaces dflt; // the hotkey lines of the "default" entry
    Keys defaultKeys; // what the "default" entry holds there
    // The comment lines above each block's first header. Where they differ (Kaboom's "///Kaboom"
    // and "//Kaboom"), an entry with the default's keys may still have been written with a key
    // chosen, and only the comment tells.
    std::vector<std::string> defaultComments;
    std::vector<std::string> editComments;
    bool readable = false; // the record has both texts
};

std::vector<std::string> firstComments(const std::vector<HotkeyFileSection>& sections) {
    return sections.empty() ? std::vector<std::string>() : sections.front().comments;
}

Keys keysAt(const BlockPlaces& block, const std::vector<const HotkeyFileSection*>& sections) {
    Keys keys;
    for (const HotkeyPlace& place : block.places) {
        const HotkeyFileSection* section = sections[place.section];
        keys.push_back(section != nullptr ? keyAt(place, *section) : std::nullopt);
    }
    return keys;
}

Shapes shapesOf(const AbilityRecord& record) {
    Shapes shapes;
    const std::string* edit = optionalField(record, for_edit);
    const std::string* dflt = optionalField(record, def);
    if (edit == nullptr || dflt == nullptr) {
        return shapes;
    }
    shapes.readable = true;
    shapes.edit = placesOf(*edit);
    shapes.dflt = placesOf(catalogue::markHotkeyValues(*dflt));
    const std::vector<HotkeyFileSection> own = readHotkeyFile(*dflt);
    shapes.defaultComments = firstComments(own);
    shapes.editComments = firstComments(readHotkeyFile(*edit));
    std::vector<const HotkeyFileSection*> ownSections;
    for (const HotkeyFileSection& section : own) {
        ownSections.push_back(&section);
    }
    shapes.defaultKeys = ownSections.size() == shapes.dflt.sections.size()
                             ? keysAt(shapes.dflt, ownSections)
                             : Keys(shapes.dflt.places.size());
    return shapes;
}

bool holdsDefault(const Shapes& shapes, const SectionOccurrences& file) {
    if (shapes.dflt.places.empty()) {
        return false;
    }
    const std::vector<const HotkeyFileSection*> sections = file.pick(shapes.dflt.sections);
    if (std::any_of(shapes.defaultKeys.begin(), shapes.defaultKeys.end(),
                    [](const std::optional<char>& key) { return !key; }) ||
        keysAt(shapes.dflt, sections) != shapes.defaultKeys) {
        return false;
    }
    // Where the entry written with a chosen key has a comment of its own, that comment in the
    // file says a key was chosen.
    return shapes.defaultComments == shapes.editComments || sections.front() == nullptr ||
           sections.front()->comments != shapes.editComments;
}

struct Choice {
    std::optional<std::string> newHotkey;
    std::optional<std::string> newEdit;
    bool operator==(const Choice&) const = default;
};

Choice choiceOf(const AbilityRecord& record) {
    const std::string* key = optionalField(record, new_hotkey);
    const std::string* edit = optionalField(record, new_edit);
    return {key ? std::optional(*key) : std::nullopt, edit ? std::optional(*edit) : std::nullopt};
}

void clearChoice(AbilityRecord& record) {
    record[new_hotkey] = "";
    record[new_edit] = "";
}

// Reads one ability from the file and sets or clears its choice; false when the file holds no
// key for it.
bool readAbility(AbilityRecord& record, const Shapes& shapes, SectionOccurrences& file,
                 ImportReport& report) {
    if (!shapes.readable) {
        return false;
    }
    if (holdsDefault(shapes, file)) {
        file.take(shapes.dflt.sections);
        clearChoice(record);
        return true;
    }
    const Keys keys = keysAt(shapes.edit, file.pick(shapes.edit.sections));
    const auto first = std::find_if(keys.begin(), keys.end(),
                                    [](const std::optional<char>& key) { return key.has_value(); });
    if (first == keys.end()) {
        return false;
    }
    file.take(shapes.edit.sections);
    const char key = **first;
    if (std::any_of(keys.begin(), keys.end(), [](const std::optional<char>& k) { return !k; })) {
        ++report.partial;
    }
    if (std::any_of(keys.begin(), keys.end(),
                    [key](const std::optional<char>& k) { return k && *k != key; })) {
        ++report.mixed;
    }
    const std::string letter(1, key);
    if (replaceAll(*optionalField(record, for_edit), mark, letter) == *optionalField(record, def)) {
        clearChoice(record);
    } else {
        assignKey(record, letter);
    }
    return true;
}

} // namespace

ImportReport importCustomKeys(std::vector<AbilityRecord>& list, std::string_view text) {
    const std::vector<HotkeyFileSection> sections = readHotkeyFile(text);
    std::vector<Shapes> shapes;
    // Whatever their case in the file, as the game finds them.
    std::set<std::string, AsciiCaseLess> written;
    for (const AbilityRecord& record : list) {
        shapes.push_back(shapesOf(record));
        written.insert(shapes.back().edit.sections.begin(), shapes.back().edit.sections.end());
        written.insert(shapes.back().dflt.sections.begin(), shapes.back().dflt.sections.end());
    }

    ImportReport report;
    report.fileSections = sections.size();
    report.unknownSections = static_cast<std::size_t>(
        std::count_if(sections.begin(), sections.end(),
                      [&written](const HotkeyFileSection& s) { return !written.contains(s.id); }));
    if (!report.holdsCatalogue()) {
        return report;
    }

    SectionOccurrences file(sections);
    for (std::size_t i = 0; i < list.size(); ++i) {
        const Choice before = choiceOf(list[i]);
        if (!readAbility(list[i], shapes[i], file, report)) {
            ++report.notInFile;
            continue;
        }
        ++report.read;
        if (choiceOf(list[i]) != before) {
            ++report.changed;
        }
    }
    return report;
}

} // namespace tarnic
