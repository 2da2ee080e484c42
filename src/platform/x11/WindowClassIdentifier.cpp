#include "platform/x11/WindowClassIdentifier.h"

#include "core/vocabulary/KeyCodes.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace tarnic::x11 {

namespace {

// The game's launchers and executables as Wine names their windows.
constexpr std::array<std::string_view, 3> kGameExecutables = {"war3.exe", "Warcraft III.exe",
                                                              "Frozen Throne.exe"};

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) ==
               std::tolower(static_cast<unsigned char>(y));
    });
}

} // namespace

std::string identifierOfWindowClass(std::string_view windowClass) {
    for (std::string_view executable : kGameExecutables) {
        if (equalIgnoringCase(windowClass, executable)) {
            return war3ID;
        }
    }
    return std::string(windowClass);
}

} // namespace tarnic::x11
