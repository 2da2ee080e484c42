#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnic {

// One [section] of a hotkey file as the game reads it: the identifier inside the brackets and
// the lines that follow it up to the next header.
struct HotkeyFileSection {
    std::string id;
    // The comment lines right above the header (after the previous section's last line), which
    // the game skips.
    std::vector<std::string> comments;
    // Each line without its line end and without blanks at either end; empty lines and "//"
    // comment lines are left out. Comments and lines are trimmed alike.
    std::vector<std::string> lines;
};

// The sections of a CustomKeys.txt text, in file order, the same identifier as often as the file
// holds it. The text is UTF-8 with or without a byte-order mark, with CRLF or LF line ends; lines
// before the first header belong to no section and are dropped. Any bytes at all are accepted:
// what is not a section is simply not there.
std::vector<HotkeyFileSection> readHotkeyFile(std::string_view text);

// `text` without blanks and tabs at either end.
std::string_view trimBlanks(std::string_view text);

} // namespace tarnic
