// Abilities of the tavern heroes from the Sea Witch to the Dark Ranger.
// Each block is the game's own default entry for the ability's sections, in catalogue order.
#include "core/catalogue/tables/AbilityTables.h"

namespace tarnic::catalogue {
namespace {

constexpr AbilityEntry entries[] = {
    // The switch-off tip and the hotkey stand on one line.
    {
        .name = "Frost Arrows",
        .parent = "NagaSeaWitch",
        .defHotkey = "R",
        .defaultText = R"(// Frost Arrows (Sea Witch)
[ANfa]
Tip=F|cffffcc00r|rost Arrows - [|cffffcc00Level 1|r],F|cffffcc00r|rost Arrows - [|cffffcc00Level 2|r],F|cffffcc00r|rost Arrows - [|cffffcc00Level 3|r]
Untip="|cffc3dbffRight-click to activate auto-casting.|r"Hotkey=R
Unhotkey=R
Researchtip="Learn F|cffffcc00r|rost Arrows - [|cffffcc00Level %d|r]"
Researchhotkey=R)",
        .forEdit = R"(// Frost Arrows (Sea Witch)
[ANfa]
Tip=F|cffffcc00r|rost Arrows - [|cffffcc00Level 1|r],F|cffffcc00r|rost Arrows - [|cffffcc00Level 2|r],F|cffffcc00r|rost Arrows - [|cffffcc00Level 3|r]
Untip="|cffc3dbffRight-click to activate auto-casting.|r"Hotkey=✔︎
Unhotkey=✔︎
Researchtip="Learn F|cffffcc00r|rost Arrows - [|cffffcc00Level %d|r]"
Researchhotkey=✔︎)",
    },
    {
        .name = "Forked Lightning",
        .parent = "NagaSeaWitch",
        .defHotkey = "F",
        .defaultText = R"(// Forked Lightning (Sea Witch)
[ANfl]
Tip=|cffffcc00F|rorked Lightning - [|cffffcc00Level 1|r],|cffffcc00F|rorked Lightning - [|cffffcc00Level 2|r],|cffffcc00F|rorked Lightning - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn |cffffcc00F|rorked Lightning - [|cffffcc00Level %d|r]"
Researchhotkey=F)",
    },
    {
        .name = "Mana Shield",
        .parent = "NagaSeaWitch",
        .defHotkey = "N",
        .defaultText = R"(// Mana Shield (Sea Witch)
[ANms]
Tip=Activate Ma|cffffcc00n|ra Shield - [|cffffcc00Level 1|r],Activate Ma|cffffcc00n|ra Shield - [|cffffcc00Level 2|r],Activate Ma|cffffcc00n|ra Shield - [|cffffcc00Level 3|r]
Untip=Deactivate Ma|cffffcc00n|ra Shield
Hotkey=N
Unhotkey=N
Researchtip="Learn Ma|cffffcc00n|ra Shield - [|cffffcc00Level %d|r]"
Researchhotkey=N)",
    },
    {
        .name = "Tornado",
        .parent = "NagaSeaWitch",
        .defHotkey = "T",
        .defaultText = R"(// Tornado (Sea Witch)
[ANto]
Tip=|cffffcc00T|rornado
Hotkey=T
Researchtip="Learn |cffffcc00T|rornado"
Researchhotkey=T)",
    },
    {
        .name = "Howl of Terror",
        .parent = "PitLord",
        .defHotkey = "T",
        .defaultText = R"(// Howl of Terror (Pit Lord)
[ANht]
Tip=Howl of |cffffcc00T|rerror - [|cffffcc00Level 1|r],Howl of |cffffcc00T|rerror - [|cffffcc00Level 2|r],Howl of |cffffcc00T|rerror - [|cffffcc00Level 3|r]
Hotkey=T
Researchtip="Learn Howl of |cffffcc00T|rerror - [|cffffcc00Level %d|r]"
Researchhotkey=T)",
    },
    {
        .name = "Rain of Fire",
        .parent = "PitLord",
        .defHotkey = "F",
        .defaultText = R"(// Rain of Fire (Pit Lord)
[ANrf]
Tip=Rain of |cffffcc00F|rire - [|cffffcc00Level 1|r],Rain of |cffffcc00F|rire - [|cffffcc00Level 2|r],Rain of |cffffcc00F|rire - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip=Learn Rain of |cffffcc00F|rire - [|cffffcc00Level %d|r]
Researchhotkey=F)",
    },
    {
        .name = "Doom",
        .parent = "PitLord",
        .defHotkey = "D",
        .defaultText = R"(// Doom (Pit Lord)
[ANdo]
Tip=|cffffcc00D|room
Hotkey=D
Researchtip="Learn |cffffcc00D|room"
Researchhotkey=D)",
    },
    {
        .name = "Breath of Fire",
        .parent = "PandarenBrewmaster",
        .defHotkey = "F",
        .defaultText = R"(// Breath of Fire (Pandaren Brewmaster)
[ANbf]
Tip=Breath of |cffffcc00F|rire - [|cffffcc00Level 1|r],Breath of |cffffcc00F|rire - [|cffffcc00Level 2|r],Breath of |cffffcc00F|rire - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn Breath of |cffffcc00F|rire - [|cffffcc00Level %d|r]"
Researchhotkey=F)",
    },
    {
        .name = "Drunken Haze",
        .parent = "PandarenBrewmaster",
        .defHotkey = "D",
        .defaultText = R"(// Drunken Haze (Pandaren Brewmaster)
[ANdh]
Tip=|cffffcc00D|rrunken Haze - [|cffffcc00Level 1|r],|cffffcc00D|rrunken Haze - [|cffffcc00Level 2|r],|cffffcc00D|rrunken Haze - [|cffffcc00Level 3|r]
Hotkey=D
Researchtip="Learn |cffffcc00D|rrunken Haze - [|cffffcc00Level %d|r]"
Researchhotkey=D)",
    },
    {
        .name = "Storm, Earth, and Fire",
        .parent = "PandarenBrewmaster",
        .defHotkey = "E",
        .defaultText = R"(// Storm, Earth, and Fire (Pandaren Brewmaster)
[ANef]
Tip="Storm, |cffffcc00E|rarth, And Fire"
Hotkey=E
Researchtip="Learn Storm, |cffffcc00E|rarth, And Fire"
Researchhotkey=E)",
    },
    {
        .name = "Wind Walk",
        .parent = "Storm",
        .defHotkey = "W",
        .defaultText = R"(// Wind Walk (wind panda)
[ANwk]
Tip=|cffffcc00W|rind Walk
Hotkey=W)",
    },
    {
        .name = "Taunt",
        .parent = "Storm",
        .defHotkey = "T",
        .defaultText = R"(// Taunt (earth panda)
[ANta]
Tip=|cffffcc00T|raunt
Hotkey=T)",
    },
    {
        .name = "Dispel Magic",
        .parent = "Storm",
        .defHotkey = "D",
        .defaultText = R"(// dispel magic (wind panda + various creeps -- shared ability)
[Adsm]
Tip=|cffffcc00D|rispel Magic
Hotkey=D)",
    },
    {
        .name = "Cyclone",
        .parent = "Storm",
        .defHotkey = "C",
        .defaultText = R"(// cyclone (Wind panda + various creeps -- shared ability)
[ACcy]
Tip=|cffffcc00C|ryclone
Hotkey=C)",
    },
    {
        .name = "Summon Hawk",
        .parent = "Beastmaster",
        .defHotkey = "W",
        .defaultText = R"(// Summon Hawk (Beastmaster)
[ANsw]
Tip=Summon Ha|cffffcc00w|rk - [|cffffcc00Level 1|r],Summon Ha|cffffcc00w|rk - [|cffffcc00Level 2|r],Summon Ha|cffffcc00w|rk - [|cffffcc00Level 3|r]
Hotkey=W
Researchtip=Learn Summon Ha|cffffcc00w|rk - [|cffffcc00Level %d|r]
Researchhotkey=W)",
    },
    {
        .name = "Summon Quilbeast",
        .parent = "Beastmaster",
        .defHotkey = "Q",
        .defaultText = R"(// Summon Quilbeast (Beastmaster)
[ANsq]
Tip=Summon |cffffcc00Q|ruilbeast - [|cffffcc00Level 1|r],Summon |cffffcc00Q|ruilbeast - [|cffffcc00Level 2|r],Summon |cffffcc00Q|ruilbeast - [|cffffcc00Level 3|r]
Hotkey=Q
Researchtip=Learn Summon |cffffcc00Q|ruilbeast - [|cffffcc00Level %d|r]
Researchhotkey=Q)",
    },
    {
        .name = "Summon Bear",
        .parent = "Beastmaster",
        .defHotkey = "B",
        .defaultText = R"(// Summon Bear (Beastmaster)
[ANsg]
Tip=Summon |cffffcc00B|rear - [|cffffcc00Level 1|r],Summon |cffffcc00B|rear - [|cffffcc00Level 2|r],Summon |cffffcc00B|rear - [|cffffcc00Level 3|r]
Hotkey=B
Researchtip=Learn Summon |cffffcc00B|rear - [|cffffcc00Level %d|r]
Researchhotkey=B)",
    },
    {
        .name = "Stampede",
        .parent = "Beastmaster",
        .defHotkey = "T",
        .defaultText = R"(// Stampede (Beastmaster)
[ANst]
Tip=S|cffffcc00t|rampede
Hotkey=T
Researchtip=Learn S|cffffcc00t|rampede
Researchhotkey=T)",
    },
    {
        .name = "Blink Bear",
        .parent = "Summon Bear",
        .defHotkey = "B",
        .defaultText = R"(
[ANbl]
Hotkey=B
Tip=|cffffcc00B|rlink)",
    },
    {
        .name = "Silence",
        .parent = "Dark Ranger",
        .defHotkey = "E",
        .defaultText = R"(// Silence (Dark Ranger)
[ANsi]
Tip=Sil|cffffcc00e|rnce - [|cffffcc00Level 1|r],Sil|cffffcc00e|rnce - [|cffffcc00Level 2|r],Sil|cffffcc00e|rnce - [|cffffcc00Level 3|r]
Hotkey=E
Researchtip="Learn Sil|cffffcc00e|rnce - [|cffffcc00Level %d|r]"
Researchhotkey=E)",
    },
    // The comment keeps the game's two blanks.
    {
        .name = "Life Drain",
        .parent = "Dark Ranger",
        .defHotkey = "D",
        .defaultText = R"(// Life Drain  (Dark Ranger)
[ANdr]
Tip=Life |cffffcc00D|rrain - [|cffffcc00Level 1|r],Life |cffffcc00D|rrain - [|cffffcc00Level 2|r],Life |cffffcc00D|rrain - [|cffffcc00Level 3|r]
Hotkey=D
Researchtip="Learn Life |cffffcc00D|rrain - [|cffffcc00Level %d|r]"
Researchhotkey=D)",
    },
    // The switch-off tip and the hotkey stand on one line.
    {
        .name = "Black Arrow",
        .parent = "Dark Ranger",
        .defHotkey = "B",
        .defaultText = R"(// Black Arrow (Dark Ranger)
[ANba]
Tip=|cffffcc00B|rlack Arrow - [|cffffcc00Level 1|r],|cffffcc00B|rlack Arrow - [|cffffcc00Level 2|r],|cffffcc00B|rlack Arrow - [|cffffcc00Level 3|r]
Untip="|cffc3dbffRight-click to activate auto-casting.|r"Hotkey=B
Researchtip="Learn |cffffcc00B|rlack Arrow - [|cffffcc00Level %d|r]"
Researchhotkey=B)",
        .forEdit = R"(// Black Arrow (Dark Ranger)
[ANba]
Tip=|cffffcc00B|rlack Arrow - [|cffffcc00Level 1|r],|cffffcc00B|rlack Arrow - [|cffffcc00Level 2|r],|cffffcc00B|rlack Arrow - [|cffffcc00Level 3|r]
Untip="|cffc3dbffRight-click to activate auto-casting.|r"Hotkey=✔︎
Researchtip="Learn |cffffcc00B|rlack Arrow - [|cffffcc00Level %d|r]"
Researchhotkey=✔︎)",
    },
    {
        .name = "Charm",
        .parent = "Dark Ranger",
        .defHotkey = "C",
        .defaultText = R"(// Charm (Dark Ranger)
[ANch]
Tip=|cffffcc00C|rharm
Hotkey=C
Researchtip=Learn |cffffcc00C|rharm
Researchhotkey=C)",
    },
};

} // namespace

std::span<const AbilityEntry> neutralHeroEntries() {
    return entries;
}

} // namespace tarnic::catalogue
