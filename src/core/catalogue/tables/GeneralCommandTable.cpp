// The six general unit commands and Repair, which belong to no owner.
// Each block is the game's own default entry for the ability's sections, in catalogue order.
#include "core/catalogue/tables/AbilityTables.h"

namespace tarnic::catalogue {
namespace {

constexpr AbilityEntry entries[] = {
    {
        .name = "Move",
        .defHotkey = "M",
        .defaultText = R"(//move
[CmdMove]
Tip=|cffffcc00M|rove
Hotkey=M)",
    },
    {
        .name = "Attack",
        .defHotkey = "A",
        .defaultText = R"(//attack
[CmdAttack]
Tip=|cffffcc00A|rttack
Hotkey=A)",
    },
    {
        .name = "Stop",
        .defHotkey = "S",
        .defaultText = R"(//stop
[CmdStop]
Tip=|cffffcc00S|rtop
Hotkey=S)",
    },
    {
        .name = "Hold",
        .defHotkey = "H",
        .defaultText = R"(//hold position
[CmdHoldPos]
Tip=|cffffcc00H|rold Position
Hotkey=H)",
    },
    {
        .name = "Patrol",
        .defHotkey = "P",
        .defaultText = R"(//patrol
[CmdPatrol]
Tip=|cffffcc00P|ratrol
Hotkey=P)",
    },
    {
        .name = "Attack Ground",
        .defHotkey = "G",
        .defaultText = R"(//attack ground
[CmdAttackGround]
Tip=Attack |cffffcc00G|rround
Hotkey=G)",
    },
    // The second switch-off tip lacks its closing colour code, as in the game's file.
    {
        .name = "Repair",
        .defHotkey = "R",
        .defaultText = R"(
[Arep]
Tip=|cffffcc00R|repair
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=R
Unhotkey=R
[Arst]
Tip=|cffffcc00R|restore
Untip="|cffc3dbffRight-click to activate auto-casting."
Hotkey=R
Unhotkey=R)",
    },
};

} // namespace

std::span<const AbilityEntry> generalCommandEntries() {
    return entries;
}

} // namespace tarnic::catalogue
