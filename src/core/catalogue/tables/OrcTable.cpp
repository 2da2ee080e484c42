// Abilities of the orc units and heroes.
// Each block is the game's own default entry for the ability's sections, in catalogue order.
#include "core/catalogue/tables/AbilityTables.h"
#include "core/catalogue/tables/SharedTexts.h"

namespace tarnic::catalogue {
namespace {

constexpr std::string_view windWalkBlock = R"(// Wind Walk
[AOwk]
Tip=|cffffcc00W|rind Walk - [|cffffcc00Level 1|r],|cffffcc00W|rind Walk - [|cffffcc00Level 2|r],|cffffcc00W|rind Walk - [|cffffcc00Level 3|r]
Hotkey=W
Researchtip="Learn |cffffcc00W|rind Walk - [|cffffcc00Level %d|r]"
Researchhotkey=W)";

constexpr AbilityEntry entries[] = {
    // Its template is Resurrection's: a key chosen for Berserk writes that entry.
    {
        .name = "Berserk",
        .parent = "HeadHunterBerserker",
        .defHotkey = "B",
        .defaultText = R"(// Berserk
[Absk]
Tip="|cffffcc00B|rerserk"
Hotkey=B)",
        .forEdit = resurrectionForEdit,
    },
    {
        .name = "Devour",
        .parent = "KotoBeast",
        .defHotkey = "D",
        .defaultText = R"(// Devour
[Adev]
Tip=|cffffcc00D|revour
Hotkey=D)",
    },
    // The default key shown is T although the game's entry casts with E.
    {
        .name = "Ensnare",
        .parent = "Raider",
        .defHotkey = "T",
        .defaultText = R"(// Ensnare
[Aens]
Tip=|cffffcc00E|rnsnare
Hotkey=E)",
    },
    {
        .name = "Purge",
        .parent = "Shaman",
        .defHotkey = "G",
        .defaultText = R"(// Purge
[Aprg]
Tip=Pur|cffffcc00g|re
Hotkey=G)",
    },
    {
        .name = "Blood Lust",
        .parent = "Shaman",
        .defHotkey = "B",
        .defaultText = R"(// Bloodlust
[Ablo]
Tip=|cffffcc00B|rloodlust
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=B
Unhotkey=B)",
    },
    {
        .name = "Lightning Shield",
        .parent = "Shaman",
        .defHotkey = "L",
        .defaultText = R"(// Lightning Shield
[Alsh]
Tip=|cffffcc00L|rightning Shield
Hotkey=L)",
    },
    {
        .name = "Unstable Concoction",
        .parent = "TrollBatRider",
        .defHotkey = "C",
        .defaultText = R"(// Unstable Concoction
[Auco]
Tip="Unstable |cffffcc00C|roncoction"
Untip="|cffc3dbffRight-click to activate auto-casting.|r"
Hotkey=C
Unhotkey=C)",
    },
    {
        .name = "Spirit Link",
        .parent = "SpiritWalker",
        .defHotkey = "R",
        .defaultText = R"(// Spirit Link
[Aspl]
Tip="Spi|cffffcc00r|rit Link"
Hotkey=R)",
    },
    {
        .name = "Disenchant",
        .parent = "SpiritWalker",
        .defHotkey = "D",
        .defaultText = R"(// Disenchant (new)
[Adcn]
Tip="|cffffcc00D|risenchant"
Hotkey=D)",
    },
    {
        .name = "Ancestral Spirit",
        .parent = "SpiritWalker",
        .defHotkey = "C",
        .defaultText = R"(// Ancestral Spirit
[Aast]
Tip="An|cffffcc00c|restral Spirit"
Hotkey=C)",
    },
    {
        .name = "Ethereal Form",
        .parent = "SpiritWalker",
        .defHotkey = "F",
        .defaultText = R"(// Ethereal Form
[Aetf]
Tip="Ethereal |cffffcc00F|rorm"
Untip="Corporeal |cffffcc00F|rorm"
Hotkey=F
Unhotkey=F
// Corporeal Form
[Acpf]
Tip="Corporeal |cffffcc00F|rorm"
Untip="Ethereal |cffffcc00F|rorm"
Hotkey=F
Unhotkey=F)",
    },
    {
        .name = "Sentry Ward",
        .parent = "WitchDoctor",
        .defHotkey = "W",
        .defaultText = R"(// Sentry Ward
[Aeye]
Tip=Sentry |cffffcc00W|rard
Hotkey=W)",
    },
    {
        .name = "Stasis Trap",
        .parent = "WitchDoctor",
        .defHotkey = "T",
        .defaultText = R"(// Stasis Trap spell
[Asta]
Tip=Stasis |cffffcc00T|rrap
Hotkey=T)",
    },
    {
        .name = "Healing Ward",
        .parent = "WitchDoctor",
        .defHotkey = "E",
        .defaultText = R"(// Healing Ward
[Ahwd]
Tip=H|cffffcc00e|raling Ward
Hotkey=E)",
    },
    {
        .name = "Wind Walk",
        .parent = "Blademaster",
        .defHotkey = "W",
        .defaultText = windWalkBlock,
    },
    // Its texts are Wind Walk's, while its default key is R.
    {
        .name = "Mirror Image",
        .parent = "Blademaster",
        .defHotkey = "R",
        .defaultText = windWalkBlock,
    },
    {
        .name = "Bladestorm",
        .parent = "Blademaster",
        .defHotkey = "B",
        .defaultText = R"(// Bladestorm
[AOww]
Tip=|cffffcc00B|rladestorm
Hotkey=B
Researchtip=Learn |cffffcc00B|rladestorm
Researchhotkey=B)",
    },
    {
        .name = "Shockwave",
        .parent = "TaurenChieftain",
        .defHotkey = "W",
        .defaultText = R"(// Shockwave
[AOsh]
Tip=Shock|cffffcc00w|rave - [|cffffcc00Level 1|r],Shock|cffffcc00w|rave - [|cffffcc00Level 2|r],Shock|cffffcc00w|rave - [|cffffcc00Level 3|r]
Hotkey=W
Researchtip="Learn Shock|cffffcc00w|rave - [|cffffcc00Level %d|r]"
Researchhotkey=W)",
    },
    {
        .name = "War Stomp",
        .parent = "TaurenChieftain",
        .defHotkey = "T",
        .defaultText = R"(// War Stomp (Chieftan)
[AOws]
Tip=War S|cffffcc00t|romp - [|cffffcc00Level 1|r],War S|cffffcc00t|romp - [|cffffcc00Level 2|r],War S|cffffcc00t|romp - [|cffffcc00Level 3|r]
Researchtip="Learn War S|cffffcc00t|romp - [|cffffcc00Level %d|r]."
Hotkey=T
Researchhotkey=T)",
    },
    {
        .name = "Chain Lightning",
        .parent = "Farseer",
        .defHotkey = "C",
        .defaultText = R"(// Chain Lightning
[AOcl]
Tip=|cffffcc00C|rhain Lightning - [|cffffcc00Level 1|r],|cffffcc00C|rhain Lightning - [|cffffcc00Level 2|r],|cffffcc00C|rhain Lightning - [|cffffcc00Level 3|r]
Hotkey=C
Researchtip="Learn |cffffcc00C|rhain Lightning - [|cffffcc00Level %d|r]"
Researchhotkey=C)",
    },
    {
        .name = "Far Sight",
        .parent = "Farseer",
        .defHotkey = "F",
        .defaultText = R"(// Far Sight
[AOfs]
Tip=|cffffcc00F|rar Sight - [|cffffcc00Level 1|r],|cffffcc00F|rar Sight - [|cffffcc00Level 2|r],|cffffcc00F|rar Sight - [|cffffcc00Level 3|r]
Hotkey=F
Researchtip="Learn |cffffcc00F|rar Sight - [|cffffcc00Level %d|r]"
Researchhotkey=F)",
    },
    {
        .name = "Feral spirit",
        .parent = "Farseer",
        .defHotkey = "T",
        .defaultText = R"(// Feral Spirit
[AOsf]
Tip=Feral Spiri|cffffcc00t|r - [|cffffcc00Level 1|r],Feral Spiri|cffffcc00t|r - [|cffffcc00Level 2|r],Feral Spiri|cffffcc00t|r - [|cffffcc00Level 3|r]
Researchtip="Learn Feral Spiri|cffffcc00t|r - [|cffffcc00Level %d|r]."
Hotkey=T
Researchhotkey=T)",
    },
    {
        .name = "Earthquake",
        .parent = "Farseer",
        .defHotkey = "E",
        .defaultText = R"(// Earthquake
[AOeq]
Tip=|cffffcc00E|rarthquake
Hotkey=E
Researchtip="Learn |cffffcc00E|rarthquake"
Researchhotkey=E)",
    },
    {
        .name = "Healing Wave",
        .parent = "ShadowHunter",
        .defHotkey = "E",
        .defaultText = R"(// Healing Wave
[AOhw]
Tip=H|cffffcc00e|raling Wave - [|cffffcc00Level 1|r],H|cffffcc00e|raling Wave - [|cffffcc00Level 2|r],H|cffffcc00e|raling Wave - [|cffffcc00Level 3|r]
Hotkey=E
Researchtip="Learn H|cffffcc00e|raling Wave - [|cffffcc00Level %d|r]"
Researchhotkey=E)",
    },
    {
        .name = "Hex",
        .parent = "ShadowHunter",
        .defHotkey = "X",
        .defaultText = R"(// Hex
[AOhx]
Tip=He|cffffcc00x|r - [|cffffcc00Level 1|r],He|cffffcc00x|r - [|cffffcc00Level 2|r],He|cffffcc00x|r - [|cffffcc00Level 3|r]
Hotkey=X
Researchtip="Learn He|cffffcc00x|r - [|cffffcc00Level %d|r]"
Researchhotkey=X)",
    },
    {
        .name = "Serpent Ward",
        .parent = "ShadowHunter",
        .defHotkey = "W",
        .defaultText = R"(// Serpent Ward
[AOsw]
Tip=Serpent |cffffcc00W|rard - [|cffffcc00Level 1|r],Serpent |cffffcc00W|rard - [|cffffcc00Level 2|r],Serpent |cffffcc00W|rard - [|cffffcc00Level 3|r]
Hotkey=W
Researchtip="Learn Serpent |cffffcc00W|rard - [|cffffcc00Level %d|r]"
Researchhotkey=W)",
    },
    {
        .name = "Voodoo",
        .parent = "ShadowHunter",
        .defHotkey = "V",
        .defaultText = R"(// Voodoo
[AOvd]
Tip=Big Bad |cffffcc00V|roodoo
Hotkey=V
Researchtip="Learn Big Bad |cffffcc00V|roodoo"
Researchhotkey=V)",
    },
};

} // namespace

std::span<const AbilityEntry> orcEntries() {
    return entries;
}

} // namespace tarnic::catalogue
