#include "core/vocabulary/KeysymLabel.h"

#include <array>
#include <utility>

namespace tarnic {

namespace {

constexpr std::uint32_t kUnicodeKeysymBase = 0x01000000;
constexpr char32_t kLastCodePoint = 0x10FFFF;

// Dead keys print nothing of their own; the key cap shows the accent, and so does the label.
constexpr std::array<std::pair<std::uint32_t, char32_t>, 13> kDeadKeys = {{
    {0xfe50, U'`'},      // dead_grave
    {0xfe51, U'\u00B4'}, // dead_acute
    {0xfe52, U'^'},      // dead_circumflex
    {0xfe53, U'~'},      // dead_tilde
    {0xfe54, U'\u00AF'}, // dead_macron
    {0xfe55, U'\u02D8'}, // dead_breve
    {0xfe56, U'\u02D9'}, // dead_abovedot
    {0xfe57, U'\u00A8'}, // dead_diaeresis
    {0xfe58, U'\u02DA'}, // dead_abovering
    {0xfe59, U'\u02DD'}, // dead_doubleacute
    {0xfe5a, U'\u02C7'}, // dead_caron
    {0xfe5b, U'\u00B8'}, // dead_cedilla
    {0xfe5c, U'\u02DB'}, // dead_ogonek
}};

bool isPrintable(char32_t c) {
    if (c <= 0x20 || (c >= 0x7f && c <= 0xa0) || c > kLastCodePoint) {
        return false; // controls and white space
    }
    if (c >= 0xd800 && c <= 0xdfff) {
        return false; // surrogates are no characters
    }
    // Other spaces, and the invisible format characters, show nothing on a button.
    return !(c == 0x1680 || (c >= 0x2000 && c <= 0x200f) || (c >= 0x2028 && c <= 0x202f) ||
             c == 0x205f || c == 0x3000 || c == 0xfeff);
}

std::string utf8(char32_t c) {
    std::string out;
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xc0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3f));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xe0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3f));
        out += static_cast<char>(0x80 | (c & 0x3f));
    } else {
        out += static_cast<char>(0xf0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3f));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3f));
        out += static_cast<char>(0x80 | (c & 0x3f));
    }
    return out;
}

} // namespace

std::optional<char32_t> keysymCodePoint(std::uint32_t keysym) {
    // Latin-1 keysyms are their code points.
    if ((keysym >= 0x20 && keysym <= 0x7e) || (keysym >= 0xa0 && keysym <= 0xff)) {
        return static_cast<char32_t>(keysym);
    }
    if (keysym >= kUnicodeKeysymBase && keysym - kUnicodeKeysymBase <= kLastCodePoint) {
        return static_cast<char32_t>(keysym - kUnicodeKeysymBase);
    }
    for (const auto& [dead, accent] : kDeadKeys) {
        if (dead == keysym) {
            return accent;
        }
    }
    return std::nullopt;
}

char32_t upperCase(char32_t c) {
    if (c >= U'a' && c <= U'z') {
        return c - 0x20;
    }
    // Latin-1: à to þ, but not ÷; ÿ is the one whose capital lies elsewhere.
    if (c >= 0xe0 && c <= 0xfe && c != 0xf7) {
        return c - 0x20;
    }
    if (c == 0xff) {
        return 0x178;
    }
    // Latin Extended-A pairs capital and small letter side by side; the capital is even in the
    // first and third runs, odd in the second and fourth. ı (0x131) and ĸ (0x138) have no pair.
    if ((c >= 0x100 && c <= 0x137 && c != 0x131) || (c >= 0x14a && c <= 0x177)) {
        return (c % 2 == 1) ? c - 1 : c;
    }
    if ((c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17e)) {
        return (c % 2 == 0) ? c - 1 : c;
    }
    // Greek small letters; the final sigma's capital is the sigma's.
    if (c == 0x3c2) {
        return 0x3a3;
    }
    if (c >= 0x3b1 && c <= 0x3c9) {
        return c - 0x20;
    }
    // Cyrillic: а to я, then ѐ to џ.
    if (c >= 0x430 && c <= 0x44f) {
        return c - 0x20;
    }
    if (c >= 0x450 && c <= 0x45f) {
        return c - 0x50;
    }
    return c;
}

std::optional<std::string> keysymLabel(std::uint32_t keysym) {
    const std::optional<char32_t> c = keysymCodePoint(keysym);
    if (!c || !isPrintable(*c)) {
        return std::nullopt;
    }
    return utf8(upperCase(*c));
}

} // namespace tarnic
