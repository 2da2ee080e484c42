// Abilities of the undead units and heroes.
// Each block is the game's own default entry for the ability's sections, in catalogue order.
#include "core/catalogue/tables/AbilityTables.h"

namespace tarnic::catalogue {
namespace {

constexpr AbilityEntry entries[] = {
    {
        .name = "Curse",
        .parent = "Banshee",
        .defHotkey = "C",
        .defaultText = R"(// Curse
[Acrs]
Tip=|cffffcc00C|rurse
Untip="|cffc3dbffRight-click to activate auto-casting."
Hotkey=C
Unhotkey=C)",
    },
    {
        .name = "Anti-magic Shell",
        .parent = "Banshee",
        .defHotkey = "N",
        .defaultText = R"(// Anti-magic Shell
[Aams]
Tip=A|cffffcc00n|rti-magic Shell
Hotkey=N
// Anti-magic Shell
[Aam2]
Tip=A|cffffcc00n|rti-magic Shell
Hotkey=N)",
    },
    {
        .name = "Possession",
        .parent = "Banshee",
        .defHotkey = "O",
        .defaultText = R"(// Possession
[Apos]
Tip=P|cffffcc00o|rssession
Hotkey=O
// Possession
[Aps2]
Tip=P|cffffcc00o|rssession
Hotkey=O)",
    },
    {
        .name = "Web",
        .parent = "CryptFiend",
        .defHotkey = "W",
        .defaultText = R"(// Web
[Aweb]
Tip=|cffffcc00W|reb
Untip="|cffc3dbff|cffc3dbffRight-click to activate auto-casting."
Hotkey=W
Unhotkey=W)",
    },
    {
        .name = "Burrow",
        .parent = "CryptFiend",
        .defHotkey = "B",
        .defaultText = R"(// Burrow (crypt fiend)
[Abur]
Tip=|cffffcc00B|rurrow
Untip=Un|cffffcc00b|rurrow
Hotkey=B
Unhotkey=B)",
    },
    {
        .name = "Stone Form",
        .parent = "Gargoyle",
        .defHotkey = "F",
        .defaultText = R"(// Stone Form
[Astn]
Tip=Stone |cffffcc00F|rorm
Hotkey=F
Untip=Gargoyle |cffffcc00F|rorm
Unhotkey=F)",
    },
    {
        .name = "Cripple",
        .parent = "Necromancer",
        .defHotkey = "C",
        .defaultText = R"(// Cripple
[Acri]
Tip=|cffffcc00C|rripple
Hotkey=C)",
    },
    {
        .name = "Unholy Frenzy",
        .parent = "Necromancer",
        .defHotkey = "U",
        .defaultText = R"(// Unholy Frenzy
[Auhf]
Tip=|cffffcc00U|rnholy Frenzy
Hotkey=U)",
    },
    {
        .name = "Raise Dead",
        .parent = "Necromancer",
        .defHotkey = "R",
        .defaultText = R"(// Raise Dead
[Arai]
Tip=|cffffcc00R|raise Dead
Untip="|cffc3dbffRight-click to activate auto-casting."
Hotkey=R
Unhotkey=R)",
    },
    {
        .name = "Destroyer",
        .parent = "ObsidianStatue",
        .defHotkey = "T",
        .defaultText = R"(//destroyer
[ubsp]
Tip=Morph into Des|cffffcc00t|rroyer
Hotkey=T)",
    },
    {
        .name = "Essence of Blight",
        .parent = "ObsidianStatue",
        .defHotkey = "B",
        .defaultText = R"(// Essence of Blight
[Arpl]
Tip=Essence of |cffffcc00B|rlight
Untip="|cffc3dbff|cffc3dbffRight-click to activate auto-casting.|r|r"
Hotkey=B
Unhotkey=B)",
    },
    {
        .name = "Spirit Touch",
        .parent = "ObsidianStatue",
        .defHotkey = "C",
        .defaultText = R"(// Spirit Touch
[Arpm]
Tip=Spirit Tou|cffffcc00c|rh
Untip="|cffc3dbff|cffc3dbffRight-click to activate auto-casting.|r|r"
Hotkey=C
Unhotkey=C)",
    },
    {
        .name = "Absorb Mana",
        .parent = "Destroyer",
        .defHotkey = "B",
        .defaultText = R"(// Absorb Mana
[Aabs]
Tip="A|cffffcc00b|rsorb Mana"
Hotkey=B)",
    },
    {
        .name = "Orb of Annihilation",
        .parent = "Destroyer",
        .defHotkey = "O",
        .defaultText = R"(// Orb of Annihilation
[Afak]
Tip="|cffffcc00O|rrb of Annihilation"
Untip="|cffc3dbff|cffc3dbffRight-click to activate auto-casting.|r|r"
Hotkey=O
Unhotkey=O)",
    },
    {
        .name = "Devour Magic",
        .parent = "Destroyer",
        .defHotkey = "D",
        .defaultText = R"(// Devour Magic
[Advm]
Tip="|cffffcc00D|revour Magic"
Hotkey=D)",
    },
    {
        .name = "Impale",
        .parent = "CryptLord",
        .defHotkey = "E",
        .defaultText = R"(// Impale
[AUim]
Tip=Impal|cffffcc00e|r - [|cffffcc00Level 1|r],Impal|cffffcc00e|r - [|cffffcc00Level 2|r],Impal|cffffcc00e|r - [|cffffcc00Level 3|r]
Hotkey=E
Researchtip="Learn Impal|cffffcc00e|r - [|cffffcc00Level %d|r]"
Researchhotkey=E)",
    },
    {
        .name = "Carrion Beetle",
        .parent = "CryptLord",
        .defHotkey = "C",
        .defaultText = R"(// Carrion Beetles
[AUcb]
Tip=|cffffcc00C|rarrion Beetles - [|cffffcc00Level 1|r],|cffffcc00C|rarrion Beetles - [|cffffcc00Level 2|r],|cffffcc00C|rarrion Beetles - [|cffffcc00Level 3|r]
Hotkey=C
Researchtip="Learn |cffffcc00C|rarrion Beetles - [|cffffcc00Level %d|r]"
Researchhotkey=C
Untip="|cffc3dbffRight-click to activate auto-casting.")",
    },
    {
        .name = "Locust Swarm",
        .parent = "CryptLord",
        .defHotkey = "L",
        .defaultText = R"(// Locust Swarm
[AUls]
Tip=|cffffcc00L|rocust Swarm
Hotkey=L
Researchtip="Learn |cffffcc00L|rocust Swarm"
Researchhotkey=L)",
    },
    {
        .name = "Burrow",
        .parent = "CryptLord",
        .defHotkey = "B",
        .defaultText = R"(
[Abu2]
Tip=|cffffcc00B|rurrow
Untip=Un|cffffcc00b|rurrow
Hotkey=B
Unhotkey=B
[Abu3]
Tip=|cffffcc00B|rurrow
Untip=Un|cffffcc00b|rurrow
Hotkey=B
Unhotkey=B)",
    },
    {
        .name = "Death Coil",
        .parent = "DeathKnight",
        .defHotkey = "C",
        .defaultText = R"(// Death Coil
[AUdc]
Tip=Death |cffffcc00C|roil - [|cffffcc00Level 1|r],Death |cffffcc00C|roil - [|cffffcc00Level 2|r],Death |cffffcc00C|roil - [|cffffcc00Level 3|r]
Hotkey=C
Researchtip="Learn Death |cffffcc00C|roil - [|cffffcc00Level %d|r]"
Researchhotkey=C)",
    },
    {
        .name = "Animate Dead",
        .parent = "DeathKnight",
        .defHotkey = "D",
        .defaultText = R"(// Animate Dead
[AUan]
Tip=Animate |cffffcc00D|read
Hotkey=D
Researchtip="Learn Animate |cffffcc00D|read"
Researchhotkey=D)",
    },
    {
        .name = "Death Pact",
        .parent = "DeathKnight",
        .defHotkey = "E",
        .defaultText = R"(// Death Pact
[AUdp]
Tip=D|cffffcc00e|rath Pact - [|cffffcc00Level 1|r],D|cffffcc00e|rath Pact - [|cffffcc00Level 2|r],D|cffffcc00e|rath Pact - [|cffffcc00Level 3|r]
Hotkey=E
Researchtip="Learn D|cffffcc00e|rath Pact - [|cffffcc00Level %d|r]"
Researchhotkey=E)",
    },
    {
        .name = "Carrion Swarm",
        .parent = "Dreadlord",
        .defHotkey = "C",
        .defaultText = R"(// Carrion Swarm
[AUcs]
Tip=|cffffcc00C|rarrion Swarm - [|cffffcc00Level 1|r],|cffffcc00C|rarrion Swarm - [|cffffcc00Level 2|r],|cffffcc00C|rarrion Swarm - [|cffffcc00Level 3|r]
Hotkey=C
Researchtip="Learn |cffffcc00C|rarrion Swarm - [|cffffcc00Level %d|r]"
Researchhotkey=C)",
    },
    {
        .name = "Sleep",
        .parent = "Dreadlord",
        .defHotkey = "E",
        .defaultText = R"(// Sleep
[AUsl]
Tip=Sl|cffffcc00e|rep - [|cffffcc00Level 1|r],Sl|cffffcc00e|rep - [|cffffcc00Level 2|r],Sl|cffffcc00e|rep - [|cffffcc00Level 3|r]
Hotkey=E
Researchtip="Learn Sl|cffffcc00e|rep - [|cffffcc00Level %d|r]"
Researchhotkey=E)",
    },
    {
        .name = "Infernal",
        .parent = "Dreadlord",
        .defHotkey = "N",
        .defaultText = R"(//inferno
[AUin]
Tip=I|cffffcc00n|rferno
Hotkey=N
Researchtip=Learn I|cffffcc00n|rferno
Researchhotkey=N)",
    },
    {
        .name = "Frost Nova",
        .parent = "Lich",
        .defHotkey = "N",
        .defaultText = R"(// Frost Nova
[AUfn]
Tip=Frost |cffffcc00N|rova - [|cffffcc00Level 1|r],Frost |cffffcc00N|rova - [|cffffcc00Level 2|r],Frost |cffffcc00N|rova - [|cffffcc00Level 3|r]
Hotkey=N
Researchtip="Learn Frost |cffffcc00N|rova - [|cffffcc00Level %d|r]"
Researchhotkey=N)",
    },
    {
        .name = "Frost Armour",
        .parent = "Lich",
        .defHotkey = "F",
        .defaultText = R"(// Frost Armor (Autocast, Lich)
[AUfu]
Tip=|cffffcc00F|rrost Armor - [|cffffcc00Level 1|r],|cffffcc00F|rrost Armor - [|cffffcc00Level 2|r],|cffffcc00F|rrost Armor - [|cffffcc00Level 3|r]
Untip="|cffc3dbffRight-click to activate auto-casting."
Hotkey=F
Researchtip="Learn |cffffcc00F|rrost Armor - [|cffffcc00Level %d|r]"
Researchhotkey=F)",
    },
    {
        .name = "Dark Ritual",
        .parent = "Lich",
        .defHotkey = "R",
        .defaultText = R"(// Dark Ritual
[AUdr]
Tip=Dark |cffffcc00R|ritual - [|cffffcc00Level 1|r],Dark |cffffcc00R|ritual - [|cffffcc00Level 2|r],Dark |cffffcc00R|ritual - [|cffffcc00Level 3|r]
Hotkey=R
Researchtip="Learn Dark |cffffcc00R|ritual - [|cffffcc00Level %d|r]"
Researchhotkey=R)",
    },
    {
        .name = "Death And Decay",
        .parent = "Lich",
        .defHotkey = "D",
        .defaultText = R"(// Death And Decay
[AUdd]
Tip=|cffffcc00D|reath And Decay
Hotkey=D
Researchtip="Learn |cffffcc00D|reath And Decay"
Researchhotkey=D)",
    },
};

} // namespace

std::span<const AbilityEntry> undeadEntries() {
    return entries;
}

} // namespace tarnic::catalogue
