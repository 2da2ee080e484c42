// Abilities of the human units and heroes.
// Each block is the game's own default entry for the ability's sections, in catalogue order.
#include "core/catalogue/tables/AbilityTables.h"
#include "core/catalogue/tables/SharedTexts.h"

namespace tarnic::catalogue {
namespace {

constexpr AbilityEntry entries[] = {
    // Both sections switch off with W, not C; a chosen key replaces all four.
    {
        .name = "Call to Arms",
        .parent = "Peasant",
        .defHotkey = "C",
        .defaultText = R"(
[Amil]
Tip=|cffffcc00C|rall to Arms
Untip=Back to |cffffcc00W|rork
Hotkey=C
Unhotkey=W
[Amic]
Tip=|cffffcc00C|rall to Arms
Untip=Back to |cffffcc00W|rork
Hotkey=C
Unhotkey=W)",
    },
    {
        .name = "Defend",
        .parent = "Footman",
        .defHotkey = "D",
        .defaultText = R"(// Defend
[Adef]
Tip=|cffffcc00D|refend
Untip=Stop |cffffcc00D|refend
Hotkey=D
Unhotkey=D)",
    },
    {
        .name = "Aerial Shackles",
        .parent = "DragonHawk",
        .defHotkey = "E",
        .defaultText = R"(// Aerial Shackles
[Amls]
Tip=A|cffffcc00e|rrial Shackles
Hotkey=E)",
    },
    {
        .name = "Cloud Of Fog",
        .parent = "DragonHawk",
        .defHotkey = "C",
        .defaultText = R"(// Cloud
[Aclf]
Tip=|cffffcc00C|rloud
Hotkey=C)",
    },
    {
        .name = "Heal",
        .parent = "Priest",
        .defHotkey = "E",
        .defaultText = R"(// Heal
[Ahea]
Tip=H|cffffcc00e|ral
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=E
Unhotkey=E)",
    },
    {
        .name = "Dispel Magic",
        .parent = "Priest",
        .defHotkey = "D",
        .defaultText = R"(// Dispel Magic
[Adis]
Tip=|cffffcc00D|rispel Magic
Hotkey=D)",
    },
    {
        .name = "Inner Fire",
        .parent = "Priest",
        .defHotkey = "F",
        .defaultText = R"(// Inner Fire
[Ainf]
Tip=Inner |cffffcc00F|rire
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=F
Unhotkey=F)",
    },
    {
        .name = "Flare",
        .parent = "MortarTeam",
        .defHotkey = "F",
        .defaultText = R"(// Flare
[Afla]
Tip=|cffffcc00F|rlare
Hotkey=F)",
    },
    {
        .name = "Slow",
        .parent = "Sorceress",
        .defHotkey = "W",
        .defaultText = R"(// Slow
[Aslo]
Tip=Slo|cffffcc00w|r
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=W
Unhotkey=W)",
    },
    {
        .name = "Invisibility",
        .parent = "Sorceress",
        .defHotkey = "I",
        .defaultText = R"(// Invisibility
[Aivs]
Tip=|cffffcc00I|rnvisibility
Hotkey=I)",
    },
    {
        .name = "Polymorph",
        .parent = "Sorceress",
        .defHotkey = "O",
        .defaultText = R"(// Polymorph
[Aply]
Tip=Polym|cffffcc00o|rrph
Hotkey=O)",
    },
    {
        .name = "Spell Steal Off",
        .parent = "SpellBreaker",
        .defHotkey = "T",
        .defaultText = R"(// Spell Steal
[Asps]
Tip=Spell S|cffffcc00t|real
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=T
Unhotkey=T)",
    },
    {
        .name = "Control Magic",
        .parent = "SpellBreaker",
        .defHotkey = "C",
        .defaultText = R"(// Control Magic
[Acmg]
Tip=|cffffcc00C|rontrol Magic
Hotkey=C)",
    },
    {
        .name = "Reveal",
        .parent = "HumanArcaneTower",
        .defHotkey = "R",
        .defaultText = R"(// reveal on arcane tower
[AHta]
Tip=|cffffcc00R|reveal
Hotkey=R)",
    },
    {
        .name = "Flame Strike",
        .parent = "Blood Mag",
        .defHotkey = "F",
        .defaultText = R"(// Flame Strike
[AHfs]
Tip=|cffffcc00F|rlame Strike - [|cffffcc00Level 1|r],|cffffcc00F|rlame Strike - [|cffffcc00Level 2|r],|cffffcc00F|rlame Strike - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn |cffffcc00F|rlame Strike - [|cffffcc00Level %d|r]"
Researchhotkey=F)",
    },
    {
        .name = "Banish",
        .parent = "Blood Mag",
        .defHotkey = "B",
        .defaultText = R"(// Banish
[AHbn]
Tip=|cffffcc00B|ranish - [|cffffcc00Level 1|r],|cffffcc00B|ranish - [|cffffcc00Level 2|r],|cffffcc00B|ranish - [|cffffcc00Level 3|r]
Hotkey=B
Researchtip="Learn |cffffcc00B|ranish - [|cffffcc00Level %d|r]"
Researchhotkey=B)",
    },
    {
        .name = "Siphon Mana",
        .parent = "Blood Mag",
        .defHotkey = "N",
        .defaultText = R"(// Siphon Mana
[AHdr]
Tip=Sipho|cffffcc00n|r Mana - [|cffffcc00Level 1|r],Sipho|cffffcc00n|r Mana - [|cffffcc00Level 2|r],Sipho|cffffcc00n|r Mana - [|cffffcc00Level 3|r]
Hotkey=N
Researchtip="Learn Sipho|cffffcc00n|r Mana - [|cffffcc00Level %d|r]"
Researchhotkey=N)",
    },
    {
        .name = "Phoenix",
        .parent = "Blood Mag",
        .defHotkey = "X",
        .defaultText = R"(// Summon Phoenix
[AHpx]
Tip=Phoeni|cffffcc00x|r
Hotkey=X
Researchtip=Learn Phoeni|cffffcc00x|r
Researchhotkey=X)",
    },
    {
        .name = "Blizzard",
        .parent = "ArchMage",
        .defHotkey = "B",
        .defaultText = R"(// Blizzard
[AHbz]
Tip=|cffffcc00B|rlizzard - [|cffffcc00Level 1|r],|cffffcc00B|rlizzard - [|cffffcc00Level 2|r],|cffffcc00B|rlizzard - [|cffffcc00Level 3|r]
Hotkey=B
Researchtip="Learn |cffffcc00B|rlizzard - [|cffffcc00Level %d|r]"
Researchhotkey=B)",
    },
    // The tip line ends in a blank, as in the game's file.
    {
        .name = "Water Elemental",
        .parent = "ArchMage",
        .defHotkey = "W",
        .defaultText = R"(// Summon Water Elemental
[AHwe]
Tip=Summon |cffffcc00W|rater Elemental - [|cffffcc00Level 1|r],Summon |cffffcc00W|rater Elemental - [|cffffcc00Level 2|r],Summon |cffffcc00W|rater Elemental - [|cffffcc00Level 3|r] 
Researchtip="Learn Summon |cffffcc00W|rater Elemental - [|cffffcc00Level %d|r]"
Hotkey=W
Researchhotkey=W)",
    },
    {
        .name = "Mass Teleport",
        .parent = "ArchMage",
        .defHotkey = "T",
        .defaultText = R"(// Mass Teleport
[AHmt]
Tip=Mass |cffffcc00T|releport
Hotkey=T
Researchtip=Learn Mass |cffffcc00T|releport
Researchhotkey=T)",
    },
    {
        .name = "Storm Bolt",
        .parent = "MountainKing",
        .defHotkey = "T",
        .defaultText = R"(// Storm Bolt
[AHtb]
Tip=S|cffffcc00t|rorm Bolt - [|cffffcc00Level 1|r],S|cffffcc00t|rorm Bolt - [|cffffcc00Level 2|r],S|cffffcc00t|rorm Bolt - [|cffffcc00Level 3|r]
Hotkey=T
Researchtip="Learn S|cffffcc00t|rorm Bolt - [|cffffcc00Level %d|r]"
Researchhotkey=T)",
    },
    {
        .name = "Thunder Clap",
        .parent = "MountainKing",
        .defHotkey = "C",
        .defaultText = R"(// Thunder Clap
[AHtc]
Tip=Thunder |cffffcc00C|rlap - [|cffffcc00Level 1|r],Thunder |cffffcc00C|rlap - [|cffffcc00Level 2|r],Thunder |cffffcc00C|rlap - [|cffffcc00Level 3|r]
Hotkey=C
Researchtip="Learn Thunder |cffffcc00C|rlap - [|cffffcc00Level %d|r]"
Researchhotkey=C)",
    },
    {
        .name = "Avatar",
        .parent = "MountainKing",
        .defHotkey = "V",
        .defaultText = R"(// Avatar
[AHav]
Tip=Activate A|cffffcc00v|ratar
Untip=Deactivate A|cffffcc00v|ratar
Hotkey=V
Unhotkey=V
Researchtip=Learn A|cffffcc00v|ratar
Researchhotkey=V)",
    },
    {
        .name = "Holy Light",
        .parent = "Paladin",
        .defHotkey = "T",
        .defaultText = R"(// Holy Light
[AHhb]
Tip=Holy Ligh|cffffcc00t|r - [|cffffcc00Level 1|r],Holy Ligh|cffffcc00t|r - [|cffffcc00Level 2|r],Holy Ligh|cffffcc00t|r - [|cffffcc00Level 3|r]
Hotkey=T
Researchtip="Learn Holy Ligh|cffffcc00t|r - [|cffffcc00Level %d|r]"
Researchhotkey=T)",
    },
    {
        .name = "Divine Shield",
        .parent = "Paladin",
        .defHotkey = "D",
        .defaultText = R"(// Divine Shield
[AHds]
Tip=Activate |cffffcc00D|rivine Shield - [|cffffcc00Level 1|r],Activate |cffffcc00D|rivine Shield - [|cffffcc00Level 2|r],Activate |cffffcc00D|rivine Shield - [|cffffcc00Level 3|r]
Untip=Deactivate |cffffcc00D|rivine Shield
Hotkey=D
Unhotkey=D
Researchtip="Learn |cffffcc00D|rivine Shield - [|cffffcc00Level %d|r]"
Researchhotkey=D)",
    },
    // The game's own entry joins the tip and the hotkey on one line.
    {
        .name = "Resurrection",
        .parent = "Paladin",
        .defHotkey = "R",
        .defaultText = R"(// Resurrection
[AHre]
Tip=|cffffcc00R|resurrectionHotkey=R
Researchtip=Learn |cffffcc00R|resurrection
Researchhotkey=R)",
        .forEdit = resurrectionForEdit,
    },
};

} // namespace

std::span<const AbilityEntry> humanEntries() {
    return entries;
}

} // namespace tarnic::catalogue
