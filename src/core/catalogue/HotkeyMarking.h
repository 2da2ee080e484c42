#pragma once

#include <string>
#include <string_view>

namespace tarnic::catalogue {

// The template of a block: the value of every line that begins with "Hotkey=", "Unhotkey=" or
// "Researchhotkey=" becomes the hotkey marker; every other character stays as it is.
std::string markHotkeyValues(std::string_view block);

} // namespace tarnic::catalogue
