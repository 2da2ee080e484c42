#include "core/import/HotkeyPlaces.h"

#include "core/import/AsciiCase.h"
#include "core/record/AbilityRecord.h"

namespace tarnic {

namespace {

bool isAsciiLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// Whether `line` begins with `before`, the line's name (up to and with its first "=") in any case
// as the game reads it, the rest as it is: "hotkey=" begins like "Hotkey=", and
// "untip=\"x\"Hotkey=" like "Untip=\"x\"Hotkey=", whose "\"x\"Hotkey=" is tip text. A `before`
// without "=" is all name. Only `before`'s own length of the line is looked at, however long the
// line.
bool beginsWith(std::string_view line, std::string_view before) {
    const std::size_t equals = before.find('=');
    const std::size_t name = equals == std::string_view::npos ? before.size() : equals + 1;
    return line.size() >= before.size() &&
           equalIgnoringAsciiCase(line.substr(0, name), before.substr(0, name)) &&
           line.substr(name, before.size() - name) == before.substr(name);
}

// The value between `before` and `after` when `line` has that shape.
std::optional<std::string_view> valueIn(std::string_view line, std::string_view before,
                                        std::string_view after) {
    if (line.size() < before.size() + after.size() || !beginsWith(line, before) ||
        !line.ends_with(after)) {
        return std::nullopt;
    }
    return line.substr(before.size(), line.size() - before.size() - after.size());
}

std::optional<std::string_view> valueIn(const HotkeyFileSection& section, std::string_view before,
                                        std::string_view after) {
    for (const std::string& line : section.lines) {
        if (std::optional<std::string_view> value = valueIn(line, before, after)) {
            return value;
        }
    }
    return std::nullopt;
}

// "Hotkey=" for a `before` that ends in "...Hotkey=": the field the marker is the value of.
std::string_view fieldOf(std::string_view before) {
    if (!before.ends_with('=')) {
        return {};
    }
    std::size_t start = before.size() - 1;
    while (start > 0 && isAsciiLetter(before[start - 1])) {
        --start;
    }
    return start == before.size() - 1 ? std::string_view{} : before.substr(start);
}

std::optional<char> letterOf(std::string_view value) {
    value = trimBlanks(value);
    if (value.size() != 1 || !isAsciiLetter(value.front())) {
        return std::nullopt;
    }
    const char c = value.front();
    return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace

BlockPlaces placesOf(std::string_view markedBlock) {
    BlockPlaces block;
    for (const HotkeyFileSection& section : readHotkeyFile(markedBlock)) {
        block.sections.push_back(section.id);
        for (const std::string& line : section.lines) {
            const std::size_t at = line.find(mark);
            if (at != std::string::npos) {
                block.places.push_back({block.sections.size() - 1, line.substr(0, at),
                                        line.substr(at + std::string_view(mark).size())});
            }
        }
    }
    return block;
}

std::optional<char> keyAt(const HotkeyPlace& place, const HotkeyFileSection& section) {
    std::optional<std::string_view> value = valueIn(section, place.before, place.after);
    if (!value) {
        const std::string_view field = fieldOf(place.before);
        if (!field.empty() && field.size() < place.before.size()) {
            value = valueIn(section, field, place.after);
        }
    }
    return value ? letterOf(*value) : std::nullopt;
}

} // namespace tarnic
