#pragma once

#include "core/import/HotkeyFile.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnic {

// Where a block's template holds the hotkey marker: in which of its sections, and what the line
// holds before and after it ("Hotkey=" and "", or the whole tip of a line that carries the tip
// and the hotkey together).
struct HotkeyPlace {
    std::size_t section = 0; // index into BlockPlaces::sections
    std::string before;
    std::string after;
};

// A template read the way readHotkeyFile reads a file: its section identifiers in block order and
// every marked line in block order. A marked line before the first header belongs to no section
// and is no place. A line is one place, at its first marker.
struct BlockPlaces {
    std::vector<std::string> sections;
    std::vector<HotkeyPlace> places;
};

BlockPlaces placesOf(std::string_view markedBlock);

// The key a file section holds at `place`, as an upper-case letter. The line that fits is the
// first one that begins with the text before the marker and ends with the text after it, the
// line's name (up to its first "=") in any case as the game reads it; when
// none does and the template line carries more than its hotkey (a tip joined to it), the first
// line that is just that hotkey ("Hotkey=...") fits too, as the game's own files write it. No
// fitting line, or a fitting line whose value is not one letter (either case), gives nothing.
std::optional<char> keyAt(const HotkeyPlace& place, const HotkeyFileSection& section);

} // namespace tarnic
