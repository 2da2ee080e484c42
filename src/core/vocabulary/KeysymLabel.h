#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarnic {

// The naming rule for a key as the player's layout prints it: the key's first-level symbol (an X
// keysym number) as a short upper-case label in UTF-8, "A" for a, "É" for eacute, "^" for the dead
// circumflex. None when the symbol prints nothing a player would recognise on the key (control
// keys, white space, keypad and function keys, symbols the rule does not know): such a key keeps
// its US name.
//
// Known: the Latin-1 keysyms, the Unicode keysyms (0x01000000 + code point) and the common dead
// keys, which are named by the accent they put on the next letter.
std::optional<std::string> keysymLabel(std::uint32_t keysym);

// The code point a keysym stands for, when the rule knows one (see keysymLabel).
std::optional<char32_t> keysymCodePoint(std::uint32_t keysym);

// The upper-case form of a code point, for the scripts layouts put on letter keys (Latin,
// Greek, Cyrillic); a code point without one single upper-case form is returned as it is (ß).
char32_t upperCase(char32_t c);

} // namespace tarnic
