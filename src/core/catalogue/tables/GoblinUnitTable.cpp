// Abilities of the goblin units: the Zeppelin and the Clockwerk Goblin.
// Each block is the game's own default entry for the ability's sections, in catalogue order.
#include "core/catalogue/tables/AbilityTables.h"

namespace tarnic::catalogue {
namespace {

constexpr AbilityEntry entries[] = {
    // The default key shown is V although the game's entry loads with L.
    {
        .name = "Cargo Load",
        .parent = "Zeppelin",
        .defHotkey = "V",
        .defaultText = R"(
[Aloa]
Tip=|cffffcc00L|road
Hotkey=L)",
    },
    {
        .name = "Cargo Unload",
        .parent = "Zeppelin",
        .defHotkey = "U",
        .defaultText = R"(
[Adro]
Tip=|cffffcc00U|rnload All
Hotkey=U)",
    },
    // One comment for the three levels: three slashes in the default, two in the template.
    {
        .name = "Kaboom",
        .parent = "ClockwerkGoblin",
        .defHotkey = "B",
        .defaultText = R"(///Kaboom
[Asdg]
Tip=Ka|cffffcc00b|room!
Hotkey=B
Unhotkey=B
[Asd2]
Tip=Ka|cffffcc00b|room!
Hotkey=B
Unhotkey=B
[Asd3]
Tip=Ka|cffffcc00b|room!
Hotkey=B
Unhotkey=B)",
        .forEdit = R"(//Kaboom
[Asdg]
Tip=Ka|cffffcc00b|room!
Hotkey=✔︎
Unhotkey=✔︎
[Asd2]
Tip=Ka|cffffcc00b|room!
Hotkey=✔︎
Unhotkey=✔︎
[Asd3]
Tip=Ka|cffffcc00b|room!
Hotkey=✔︎
Unhotkey=✔︎)",
    },
};

} // namespace

std::span<const AbilityEntry> goblinUnitEntries() {
    return entries;
}

} // namespace tarnic::catalogue
