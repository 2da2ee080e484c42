#pragma once

#include <string>
#include <string_view>

namespace tarnic::x11 {

// The application identifier the program uses for a window's WM_CLASS class. A program run by
// Wine has its executable's name as its class; the game's executables stand for the game's
// identifier (war3ID), compared without regard to case. Every other class is its own identifier.
std::string identifierOfWindowClass(std::string_view windowClass);

} // namespace tarnic::x11
