// Abilities of the Tinker, the Alchemist and the Firelord.
// Each block is the game's own default entry for the ability's sections, in catalogue order.
#include "core/catalogue/tables/AbilityTables.h"

namespace tarnic::catalogue {
namespace {

constexpr AbilityEntry entries[] = {
    {
        .name = "Cluster Rockets",
        .parent = "Tinker",
        .defHotkey = "R",
        .defaultText = R"(// Cluster Rockets
[ANcs]
Tip=Cluster |cffffcc00R|rockets - [|cffffcc00Level 1|r],Cluster |cffffcc00R|rockets - [|cffffcc00Level 2|r],Cluster |cffffcc00R|rockets - [|cffffcc00Level 3|r]
Hotkey=R
Researchtip="Learn Cluster |cffffcc00R|rockets - [|cffffcc00Level %d|r]"
Researchhotkey=R
// Cluster Rockets
[ANc1]
Tip=Cluster |cffffcc00R|rockets - [|cffffcc00Level 1|r],Cluster |cffffcc00R|rockets - [|cffffcc00Level 2|r],Cluster |cffffcc00R|rockets - [|cffffcc00Level 3|r]
Hotkey=R
Researchtip="Learn Cluster |cffffcc00R|rockets - [|cffffcc00Level %d|r]"
Researchhotkey=R
// Cluster Rockets
[ANc2]
Tip=Cluster |cffffcc00R|rockets - [|cffffcc00Level 1|r],Cluster |cffffcc00R|rockets - [|cffffcc00Level 2|r],Cluster |cffffcc00R|rockets - [|cffffcc00Level 3|r]
Hotkey=R
Researchtip="Learn Cluster |cffffcc00R|rockets - [|cffffcc00Level %d|r]"
Researchhotkey=R
// Cluster Rockets
[ANc3]
Tip=Cluster |cffffcc00R|rockets - [|cffffcc00Level 1|r],Cluster |cffffcc00R|rockets - [|cffffcc00Level 2|r],Cluster |cffffcc00R|rockets - [|cffffcc00Level 3|r]
Hotkey=R
Researchtip="Learn Cluster |cffffcc00R|rockets - [|cffffcc00Level %d|r]"
Researchhotkey=R)",
    },
    {
        .name = "Pocket Factory",
        .parent = "Tinker",
        .defHotkey = "F",
        .defaultText = R"(// Pocket Factory
[ANsy]
Tip=Pocket |cffffcc00F|ractory - [|cffffcc00Level 1|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 2|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn Pocket |cffffcc00F|ractory - [|cffffcc00Level %d|r]"
Researchhotkey=F
// Pocket Factory
[ANs1]
Tip=Pocket |cffffcc00F|ractory - [|cffffcc00Level 1|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 2|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn Pocket |cffffcc00F|ractory - [|cffffcc00Level %d|r]"
Researchhotkey=F
// Pocket Factory
[ANs2]
Tip=Pocket |cffffcc00F|ractory - [|cffffcc00Level 1|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 2|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn Pocket |cffffcc00F|ractory - [|cffffcc00Level %d|r]"
Researchhotkey=F
// Pocket Factory
[ANs3]
Tip=Pocket |cffffcc00F|ractory - [|cffffcc00Level 1|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 2|r],Pocket |cffffcc00F|ractory - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn Pocket |cffffcc00F|ractory - [|cffffcc00Level %d|r]"
Researchhotkey=F)",
    },
    // The revert key T stays T in the template; the [ANg2] tip has no hyphen.
    {
        .name = "Robo Goblin",
        .parent = "Tinker",
        .defHotkey = "B",
        .defaultText = R"(// Robo-Goblin
[ANg1]
Tip="Ro|cffffcc00b|ro-Goblin"
Hotkey=B
Untip="Revert to |cffffcc00T|rinker Form"
Unhotkey=T
Researchtip="Learn Ro|cffffcc00b|ro-Goblin"
Researchhotkey=B
// Robo-Goblin
[ANg2]
Tip="Ro|cffffcc00b|roGoblin"
Hotkey=B
Untip="Revert to |cffffcc00T|rinker Form"
Unhotkey=T
Researchtip="Learn Ro|cffffcc00b|ro-Goblin"
Researchhotkey=B
// Robo-Goblin
[ANg3]
Tip="Ro|cffffcc00b|ro-Goblin"
Hotkey=B
Untip="Revert to |cffffcc00T|rinker Form"
Unhotkey=T
Researchtip="Learn Ro|cffffcc00b|ro-Goblin"
Researchhotkey=B
// Robo-Goblin
[ANrg]
Tip="Ro|cffffcc00b|ro-Goblin"
Hotkey=B
Untip="Revert to |cffffcc00T|rinker Form"
Unhotkey=T
Researchtip="Learn Ro|cffffcc00b|ro-Goblin"
Researchhotkey=B)",
        .forEdit = R"(// Robo-Goblin
[ANg1]
Tip="Ro|cffffcc00b|ro-Goblin"
Hotkey=✔︎
Untip="Revert to |cffffcc00T|rinker Form"
Unhotkey=T
Researchtip="Learn Ro|cffffcc00b|ro-Goblin"
Researchhotkey=✔︎
// Robo-Goblin
[ANg2]
Tip="Ro|cffffcc00b|roGoblin"
Hotkey=✔︎
Untip="Revert to |cffffcc00T|rinker Form"
Unhotkey=T
Researchtip="Learn Ro|cffffcc00b|ro-Goblin"
Researchhotkey=✔︎
// Robo-Goblin
[ANg3]
Tip="Ro|cffffcc00b|ro-Goblin"
Hotkey=✔︎
Untip="Revert to |cffffcc00T|rinker Form"
Unhotkey=T
Researchtip="Learn Ro|cffffcc00b|ro-Goblin"
Researchhotkey=✔︎
// Robo-Goblin
[ANrg]
Tip="Ro|cffffcc00b|ro-Goblin"
Hotkey=✔︎
Untip="Revert to |cffffcc00T|rinker Form"
Unhotkey=T
Researchtip="Learn Ro|cffffcc00b|ro-Goblin"
Researchhotkey=✔︎)",
    },
    {
        .name = "Acid Bomb",
        .parent = "Alchemist",
        .defHotkey = "B",
        .defaultText = R"(// Acid Bomb
[ANab]
Tip=Acid |cffffcc00B|romb - [|cffffcc00Level 1|r],Acid |cffffcc00B|romb - [|cffffcc00Level 2|r],Acid |cffffcc00B|romb - [|cffffcc00Level 3|r]
Hotkey=B
Researchtip="Learn Acid |cffffcc00B|romb - [|cffffcc00Level %d|r]"
Researchhotkey=B)",
    },
    {
        .name = "Chemical Rage",
        .parent = "Alchemist",
        .defHotkey = "R",
        .defaultText = R"(// Chemical Rage
[ANcr]
Tip=Chemical |cffffcc00R|rage - [|cffffcc00Level 1|r],Chemical |cffffcc00R|rage - [|cffffcc00Level 2|r],Chemical |cffffcc00R|rage - [|cffffcc00Level 3|r]
Hotkey=R
Researchtip="Learn Chemical |cffffcc00R|rage - [|cffffcc00Level %d|r]""
Researchhotkey=R)",
    },
    {
        .name = "Healing Spray",
        .parent = "Alchemist",
        .defHotkey = "E",
        .defaultText = R"(// Healing Spray
[ANhs]
Tip=H|cffffcc00e|raling Spray - [|cffffcc00Level 1|r],H|cffffcc00e|raling Spray - [|cffffcc00Level 2|r],H|cffffcc00e|raling Spray - [|cffffcc00Level 3|r]
Hotkey=E
Researchtip="Learn H|cffffcc00e|raling Spray - [|cffffcc00Level %d|r]"
Researchhotkey=E)",
    },
    {
        .name = "Transmute",
        .parent = "Alchemist",
        .defHotkey = "T",
        .defaultText = R"(// Transmute
[ANtm]
Tip="|cffffcc00T|rransmute"
Hotkey=T
Researchtip="Learn |cffffcc00T|rransmute"
Researchhotkey=T)",
    },
    // The comment keeps the game's spelling.
    {
        .name = "Summon Lava Spawn",
        .parent = "Firelord",
        .defHotkey = "W",
        .defaultText = R"(// Summmon Lava Spawn
[ANlm]
Tip=Summon Lava Spa|cffffcc00w|rn - [|cffffcc00Level 1|r],Summon Lava Spa|cffffcc00w|rn - [|cffffcc00Level 2|r],Summon Lava Spa|cffffcc00w|rn - [|cffffcc00Level 3|r]
Hotkey=W
Researchtip="Learn Summon Lava Spa|cffffcc00w|rn - [|cffffcc00Level %d|r]"
Researchhotkey=W)",
    },
    {
        .name = "Incinerate",
        .parent = "Firelord",
        .defHotkey = "C",
        .defaultText = R"(// Incinerate
[ANic]
Tip=Incinerate - [|cffffcc00Level 1|r],Incinerate - [|cffffcc00Level 2|r],Incinerate - [|cffffcc00Level 3|r]
Hotkey=C
Researchtip="Learn In|cffffcc00c|rinerate - [|cffffcc00Level %d|r]"
Researchhotkey=C
// Incinerate (Arrow)
[ANia]
Tip=Incinerate - [|cffffcc00Level 1|r],Incinerate - [|cffffcc00Level 2|r],Incinerate - [|cffffcc00Level 3|r]
Hotkey=C
Researchtip="Learn In|cffffcc00c|rinerate - [|cffffcc00Level %d|r]"
Researchhotkey=C)",
    },
    {
        .name = "Soul Burn",
        .parent = "Firelord",
        .defHotkey = "B",
        .defaultText = R"(// Soul Burn
[ANso]
Tip=Soul |cffffcc00B|rurn - [|cffffcc00Level 1|r],Soul |cffffcc00B|rurn - [|cffffcc00Level 2|r],Soul |cffffcc00B|rurn - [|cffffcc00Level 3|r]
Hotkey=B
Researchtip="Learn Soul |cffffcc00B|rurn - [|cffffcc00Level %d|r]"
Researchhotkey=B)",
    },
    {
        .name = "Volcano",
        .parent = "Firelord",
        .defHotkey = "V",
        .defaultText = R"(// Volcano
[ANvc]
Tip="|cffffcc00V|rolcano"
Hotkey=V
Researchtip="Learn |cffffcc00V|rolcano"
Researchhotkey=V)",
    },
};

} // namespace

std::span<const AbilityEntry> tinkerAlchemistFirelordEntries() {
    return entries;
}

} // namespace tarnic::catalogue
