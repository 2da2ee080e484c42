#pragma once

#include <string_view>

namespace tarnic {

// The game finds a section or a line of its hotkey file whatever the case of its name: [AHfs],
// [ahfs] and [AHFS] are one section, "Hotkey=" and "hotkey=" one line. Names are ASCII letters and
// digits, so only A to Z and a to z are folded; every other byte (UTF-8 included) is compared as
// it is, and no locale is consulted.
char asciiLower(char c);

bool equalIgnoringAsciiCase(std::string_view a, std::string_view b);

// Orders names as their lower-case spellings would be ordered: a map or set keyed with it holds
// one entry for every spelling of a name, and can be searched with a string_view.
struct AsciiCaseLess {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
};

} // namespace tarnic
