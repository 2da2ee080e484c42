// Abilities of the night elf units, buildings and heroes.
// Each block is the game's own default entry for the ability's sections, in catalogue order.
#include "core/catalogue/tables/AbilityTables.h"

namespace tarnic::catalogue {
namespace {

constexpr AbilityEntry entries[] = {
    {
        .name = "Detonate",
        .parent = "Wisp",
        .defHotkey = "D",
        .defaultText = R"(// Detonate
[Adtn]
Tip=|cffffcc00D|retonate
Hotkey=D)",
    },
    {
        .name = "Renew",
        .parent = "Wisp",
        .defHotkey = "R",
        .defaultText = R"(
[Aren]
Tip=|cffffcc00R|renew
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=R
Unhotkey=R)",
    },
    {
        .name = "Mount Hippogryph",
        .parent = "Archer",
        .defHotkey = "U",
        .defaultText = R"(// Mount Hippogryph
[Aco2]
Tip=Mo|cffffcc00u|rnt Hippogryph
Hotkey=U
// Dismount Hippogryph
[Adec]
Tip=Dismo|cffffcc00u|rnt Archer & Hippogryph
Hotkey=U
// Pick up Archer
[Aco3]
Tip=Pick |cffffcc00u|rp Archer
Hotkey=U)",
    },
    {
        .name = "Sentinel",
        .parent = "Huntress",
        .defHotkey = "E",
        .defaultText = R"(// Sentinel
[Aesn]
Tip=S|cffffcc00e|rntinel
Hotkey=E)",
    },
    {
        .name = "Roar",
        .parent = "Druidof the Claw",
        .defHotkey = "R",
        .defaultText = R"(// Roar, night elf form
[Aroa]
Tip=|cffffcc00R|roar
Hotkey=R
// Roar (bear form)
[Ara2]
Tip=|cffffcc00R|roar
Hotkey=R)",
    },
    {
        .name = "Rejuvenation",
        .parent = "Druidof the Claw",
        .defHotkey = "E",
        .defaultText = R"(// Rejuvenation
[Arej]
Tip=R|cffffcc00e|rjuvenation
Hotkey=E)",
    },
    {
        .name = "Bear Form",
        .parent = "Druidof the Claw",
        .defHotkey = "F",
        .defaultText = R"(// Bear Form
[Abrf]
Tip=Bear |cffffcc00F|rorm
Hotkey=F
Untip=Night Elf |cffffcc00F|rorm
Unhotkey=F)",
    },
    {
        .name = "Abolish Magic",
        .parent = "Dryad",
        .defHotkey = "B",
        .defaultText = R"(// Auto-Dispel Magic
[Aadm]
Tip=A|cffffcc00b|rolish Magic
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=B
Unhotkey=B)",
    },
    {
        .name = "Faerie Fire",
        .parent = "Druidof the Talon",
        .defHotkey = "R",
        .defaultText = R"(// Faerie Fire
[Afae]
Tip=Fae|cffffcc00r|rie Fire
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=R
Unhotkey=R
// Faerie Fire (Crow form)
[Afa2]
Tip=Fae|cffffcc00r|rie Fire
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=R
Unhotkey=R)",
    },
    {
        .name = "Cyclone",
        .parent = "Druidof the Talon",
        .defHotkey = "C",
        .defaultText = R"(// Cyclone
[Acyc]
Tip=|cffffcc00C|ryclone
Hotkey=C)",
    },
    {
        .name = "Raven Form",
        .parent = "Druidof the Talon",
        .defHotkey = "F",
        .defaultText = R"(// Crow Form
[Arav]
Tip=Storm Crow |cffffcc00F|rorm
Hotkey=F
Untip=Night Elf |cffffcc00F|rorm
Unhotkey=F)",
    },
    {
        .name = "Grab Tree",
        .parent = "MountainGiant",
        .defHotkey = "W",
        .defaultText = R"(// War Club
[Agra]
Tip=|cffffcc00W|rar Club
Hotkey=W)",
    },
    {
        .name = "Taunt",
        .parent = "MountainGiant",
        .defHotkey = "T",
        .defaultText = R"(// Taunt
[Atau]
Tip=|cffffcc00T|raunt
Hotkey=T)",
    },
    {
        .name = "Phase Shift",
        .parent = "FaerieDragon",
        .defHotkey = "E",
        .defaultText = R"(
[Apsh]
Tip=Phas|cffffcc00e|r Shift
Untip="|cffc3dbff|cffc3dbffRight-click to activate auto-casting.|r|r"
Hotkey=E
Unhotkey=E)",
    },
    {
        .name = "Mana Flare",
        .parent = "FaerieDragon",
        .defHotkey = "F",
        .defaultText = R"(
[Amfl]
Tip=Mana |cffffcc00F|rlare
Untip=Stop Mana |cffffcc00F|rlare
Hotkey=F
Unhotkey=F)",
    },
    {
        .name = "Eat Tree",
        .parent = "TreeofLife",
        .defHotkey = "E",
        .defaultText = R"(// Eat Tree
[Aeat]
Tip=|cffffcc00E|rat Tree
Hotkey=E)",
    },
    {
        .name = "Root",
        .parent = "TreeofLife",
        .defHotkey = "R",
        .defaultText = R"(
[Aroo]
Tip=|cffffcc00R|root
Hotkey=R
Untip=Up|cffffcc00r|root
Unhotkey=R)",
    },
    {
        .name = "Gold Mine",
        .parent = "TreeofLife",
        .defHotkey = "G",
        .defaultText = R"(
[Aent]
Tip=Entangle |cffffcc00G|rold Mine
Hotkey=G)",
    },
    {
        .name = "Replenish",
        .parent = "MoonWell",
        .defHotkey = "R",
        .defaultText = R"(
[Ambt]
Tip=|cffffcc00R|replenish Mana and Life
Untip="|cffc3dbff|cffc3dbffRight-click to activate auto-casting.|r|r"
Hotkey=R
Unhotkey=R)",
    },
    {
        .name = "Mana Burn",
        .parent = "DemonHunter",
        .defHotkey = "B",
        .defaultText = R"(// Mana Burn
[AEmb]
Tip=Mana |cffffcc00B|rurn - [|cffffcc00Level 1|r],Mana |cffffcc00B|rurn - [|cffffcc00Level 2|r],Mana |cffffcc00B|rurn - [|cffffcc00Level 3|r]
Hotkey=B
Researchtip="Learn Mana |cffffcc00B|rurn - [|cffffcc00Level %d|r]"
Researchhotkey=B)",
    },
    {
        .name = "Immolation",
        .parent = "DemonHunter",
        .defHotkey = "L",
        .defaultText = R"(// Immolation
[AEim]
Tip=Activate Immo|cffffcc00l|ration - [|cffffcc00Level 1|r],Activate Immo|cffffcc00l|ration - [|cffffcc00Level 2|r],Activate Immo|cffffcc00l|ration - [|cffffcc00Level 3|r]
Hotkey=L
Untip=Deactivate Immo|cffffcc00l|ration
Unhotkey=L
Researchtip="Learn Immo|cffffcc00l|ration - [|cffffcc00Level %d|r]"
Researchhotkey=L)",
    },
    {
        .name = "Metamorphosis",
        .parent = "DemonHunter",
        .defHotkey = "T",
        .defaultText = R"(// Metamorphosis
[AEme]
Tip=Me|cffffcc00t|ramorphosis
Hotkey=T
Researchtip=Learn Me|cffffcc00t|ramorphosis
Researchhotkey=T)",
    },
    {
        .name = "Roots",
        .parent = "Keeper",
        .defHotkey = "E",
        .defaultText = R"(// Entangling Roots
[AEer]
Tip=|cffffcc00E|rntangling Roots - [|cffffcc00Level 1|r],|cffffcc00E|rntangling Roots - [|cffffcc00Level 2|r],|cffffcc00E|rntangling Roots - [|cffffcc00Level 3|r]
Hotkey=E
Researchtip="Learn |cffffcc00E|rntangling Roots - [|cffffcc00Level %d|r]"
Researchhotkey=E)",
    },
    {
        .name = "Force of Nature",
        .parent = "Keeper",
        .defHotkey = "F",
        .defaultText = R"(// Force of Nature
[AEfn]
Tip=|cffffcc00F|rorce of Nature - [|cffffcc00Level 1|r],|cffffcc00F|rorce of Nature - [|cffffcc00Level 2|r],|cffffcc00F|rorce of Nature - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn |cffffcc00F|rorce of Nature - [|cffffcc00Level %d|r]"
Researchhotkey=F)",
    },
    {
        .name = "Tranquility",
        .parent = "Keeper",
        .defHotkey = "T",
        .defaultText = R"(// Tranquility
[AEtq]
Tip=|cffffcc00T|rranquility
Hotkey=T
Researchtip="Learn |cffffcc00T|rranquility"
Researchhotkey=T)",
    },
    {
        .name = "Scout",
        .parent = "Priestess",
        .defHotkey = "C",
        .defaultText = R"(// Scout
[AEst]
Tip=S|cffffcc00c|rout - [|cffffcc00Level 1|r],S|cffffcc00c|rout - [|cffffcc00Level 2|r],S|cffffcc00c|rout - [|cffffcc00Level 3|r]
Hotkey=C
Researchtip="Learn S|cffffcc00c|rout - [|cffffcc00Level %d|r]"
Researchhotkey=C)",
    },
    {
        .name = "Searing Arrows",
        .parent = "Priestess",
        .defHotkey = "R",
        .defaultText = R"(// Searing Arrows
[AHfa]
Tip=Sea|cffffcc00r|ring Arrows - [|cffffcc00Level 1|r],Sea|cffffcc00r|ring Arrows - [|cffffcc00Level 2|r],Sea|cffffcc00r|ring Arrows - [|cffffcc00Level 3|r]
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=R
Unhotkey=R
Researchtip="Learn Sea|cffffcc00r|ring Arrows - [|cffffcc00Level %d|r]"
Researchhotkey=R)",
    },
    {
        .name = "Starfall",
        .parent = "Priestess",
        .defHotkey = "F",
        .defaultText = R"(// Starfall
[AEsf]
Tip=Star|cffffcc00f|rall
Hotkey=F
Researchtip=Learn Star|cffffcc00f|rall
Researchhotkey=F)",
    },
    {
        .name = "Fan of Knives",
        .parent = "Warden",
        .defHotkey = "F",
        .defaultText = R"(// Fan of Knives
[AEfk]
Tip=|cffffcc00F|ran of Knives - [|cffffcc00Level 1|r],|cffffcc00F|ran of Knives - [|cffffcc00Level 2|r],|cffffcc00F|ran of Knives - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn |cffffcc00F|ran of Knives - [|cffffcc00Level %d|r]"
Researchhotkey=F)",
    },
    {
        .name = "Shadow Strike",
        .parent = "Warden",
        .defHotkey = "D",
        .defaultText = R"(// Shadow Strike
[AEsh]
Tip=Sha|cffffcc00d|row Strike - [|cffffcc00Level 1|r],Sha|cffffcc00d|row Strike - [|cffffcc00Level 2|r],Sha|cffffcc00d|row Strike - [|cffffcc00Level 3|r]
Hotkey=D
Researchtip="Learn Sha|cffffcc00d|row Strike - [|cffffcc00Level %d|r]"
Researchhotkey=D)",
    },
    {
        .name = "Blink",
        .parent = "Warden",
        .defHotkey = "B",
        .defaultText = R"(// Blink
[AEbl]
Tip=|cffffcc00B|rlink - [|cffffcc00Level 1|r],|cffffcc00B|rlink - [|cffffcc00Level 2|r],|cffffcc00B|rlink - [|cffffcc00Level 3|r]
Hotkey=B
Researchtip="Learn |cffffcc00B|rlink - [|cffffcc00Level %d|r]"
Researchhotkey=B)",
    },
    {
        .name = "Vengeance",
        .parent = "Warden",
        .defHotkey = "V",
        .defaultText = R"(
[AEsv]
Tip=|cffffcc00V|rengeance
Hotkey=V
Researchtip="Learn |cffffcc00V|rengeance"
Researchhotkey=V)",
    },
    {
        .name = "Spirit of Vengeance",
        .parent = "Vengeance",
        .defHotkey = "V",
        .defaultText = R"(
[Avng]
Tip=Spirit of |cffffcc00V|rengeance
Hotkey=V
Untip="|cffc3dbffRight-click to activate auto-casting.")",
    },
};

} // namespace

std::span<const AbilityEntry> nightElfEntries() {
    return entries;
}

} // namespace tarnic::catalogue
