#pragma once

#include <string_view>

namespace tarnic::catalogue {

// Resurrection's template, which Berserk's record shares.
inline constexpr std::string_view resurrectionForEdit = R"(// Resurrection
[AHre]
Tip=|cffffcc00R|resurrectionHotkey=✔︎
Researchtip=Learn |cffffcc00R|resurrection
Researchhotkey=✔︎)";

} // namespace tarnic::catalogue
