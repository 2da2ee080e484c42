#include "core/import/AsciiCase.h"

#include <algorithm>

namespace tarnic {

char asciiLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool equalIgnoringAsciiCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return asciiLower(x) == asciiLower(y);
           });
}

bool AsciiCaseLess::operator()(std::string_view a, std::string_view b) const {
    // Compared as unsigned bytes, as std::string orders them, so that bytes past 0x7F sort the
    // same on every platform.
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return static_cast<unsigned char>(asciiLower(x)) <
               static_cast<unsigned char>(asciiLower(y));
    });
}

} // namespace tarnic
