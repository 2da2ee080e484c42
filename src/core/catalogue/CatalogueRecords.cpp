#include "core/catalogue/CatalogueRecords.h"

namespace tarnic {

const AbilityRecord& move_() {
    return all_data()[0];
}
const AbilityRecord& attack_() {
    return all_data()[1];
}
const AbilityRecord& stop_() {
    return all_data()[2];
}
const AbilityRecord& hold_() {
    return all_data()[3];
}
const AbilityRecord& patrol_() {
    return all_data()[4];
}
const AbilityRecord& attack_ground_() {
    return all_data()[5];
}
const AbilityRecord& repair_() {
    return all_data()[6];
}
const AbilityRecord& calltoArms_() {
    return all_data()[7];
}
const AbilityRecord& defend_() {
    return all_data()[8];
}
const AbilityRecord& aerialShackles_() {
    return all_data()[9];
}
const AbilityRecord& cloud_() {
    return all_data()[10];
}
const AbilityRecord& heal_() {
    return all_data()[11];
}
const AbilityRecord& dispel_magic_() {
    return all_data()[12];
}
const AbilityRecord& inner_fire_() {
    return all_data()[13];
}
const AbilityRecord& flare_() {
    return all_data()[14];
}
const AbilityRecord& slow_() {
    return all_data()[15];
}
const AbilityRecord& invisibility_() {
    return all_data()[16];
}
const AbilityRecord& polymorph_() {
    return all_data()[17];
}
const AbilityRecord& spell_steal_() {
    return all_data()[18];
}
const AbilityRecord& control_magic_() {
    return all_data()[19];
}
const AbilityRecord& reveal_() {
    return all_data()[20];
}
const AbilityRecord& flame_strike_() {
    return all_data()[21];
}
const AbilityRecord& banish_() {
    return all_data()[22];
}
const AbilityRecord& siphon_mana_() {
    return all_data()[23];
}
const AbilityRecord& phoenix_() {
    return all_data()[24];
}
const AbilityRecord& blizzard_() {
    return all_data()[25];
}
const AbilityRecord& water_elemental_() {
    return all_data()[26];
}
const AbilityRecord& mass_teleport_() {
    return all_data()[27];
}
const AbilityRecord& storm_bolt_() {
    return all_data()[28];
}
const AbilityRecord& thunder_clap_() {
    return all_data()[29];
}
const AbilityRecord& avatar_() {
    return all_data()[30];
}
const AbilityRecord& holy_light_() {
    return all_data()[31];
}
const AbilityRecord& divine_shield_() {
    return all_data()[32];
}
const AbilityRecord& resurrection_() {
    return all_data()[33];
}
const AbilityRecord& berserk_() {
    return all_data()[34];
}
const AbilityRecord& devour_() {
    return all_data()[35];
}
const AbilityRecord& ensnare_() {
    return all_data()[36];
}
const AbilityRecord& purge_() {
    return all_data()[37];
}
const AbilityRecord& bloodlust_() {
    return all_data()[38];
}
const AbilityRecord& lightning_shield_() {
    return all_data()[39];
}
const AbilityRecord& unstable_concoction_() {
    return all_data()[40];
}
const AbilityRecord& spirit_link_() {
    return all_data()[41];
}
const AbilityRecord& disenchant_() {
    return all_data()[42];
}
const AbilityRecord& ancestral_spirit_() {
    return all_data()[43];
}
const AbilityRecord& ethereal_form_() {
    return all_data()[44];
}
const AbilityRecord& sentry_ward_() {
    return all_data()[45];
}
const AbilityRecord& stasis_trapspell_() {
    return all_data()[46];
}
const AbilityRecord& healing_ward_() {
    return all_data()[47];
}
const AbilityRecord& wind_walk_() {
    return all_data()[48];
}
const AbilityRecord& mirror_image_() {
    return all_data()[49];
}
const AbilityRecord& bladestorm_() {
    return all_data()[50];
}
const AbilityRecord& shockwave_() {
    return all_data()[51];
}
const AbilityRecord& war_stomp_() {
    return all_data()[52];
}
const AbilityRecord& chain_lightning_() {
    return all_data()[53];
}
const AbilityRecord& far_sight_() {
    return all_data()[54];
}
const AbilityRecord& feral_spirit_() {
    return all_data()[55];
}
const AbilityRecord& earthquake_() {
    return all_data()[56];
}
const AbilityRecord& healing_wave_() {
    return all_data()[57];
}
const AbilityRecord& hex_() {
    return all_data()[58];
}
const AbilityRecord& serpent_ward_() {
    return all_data()[59];
}
const AbilityRecord& voodoo_() {
    return all_data()[60];
}
const AbilityRecord& detonate_() {
    return all_data()[61];
}
const AbilityRecord& renew_() {
    return all_data()[62];
}
const AbilityRecord& mount_hippogryph_() {
    return all_data()[63];
}
const AbilityRecord& sentinel_() {
    return all_data()[64];
}
const AbilityRecord& roar_() {
    return all_data()[65];
}
const AbilityRecord& rejuvenation_() {
    return all_data()[66];
}
const AbilityRecord& bear_form_() {
    return all_data()[67];
}
const AbilityRecord& dryad_dispel_magic_() {
    return all_data()[68];
}
const AbilityRecord& faerie_fire_() {
    return all_data()[69];
}
const AbilityRecord& cyclone_() {
    return all_data()[70];
}
const AbilityRecord& crow_form_() {
    return all_data()[71];
}
const AbilityRecord& grab_tree_() {
    return all_data()[72];
}
const AbilityRecord& taunt_() {
    return all_data()[73];
}
const AbilityRecord& phase_shift_() {
    return all_data()[74];
}
const AbilityRecord& mana_flare_() {
    return all_data()[75];
}
const AbilityRecord& eat_tree_() {
    return all_data()[76];
}
const AbilityRecord& root_() {
    return all_data()[77];
}
const AbilityRecord& gold_mine_() {
    return all_data()[78];
}
const AbilityRecord& replenish_() {
    return all_data()[79];
}
const AbilityRecord& mana_burn_() {
    return all_data()[80];
}
const AbilityRecord& immolation_() {
    return all_data()[81];
}
const AbilityRecord& metamorphosis_() {
    return all_data()[82];
}
const AbilityRecord& roots_() {
    return all_data()[83];
}
const AbilityRecord& forceofnature_() {
    return all_data()[84];
}
const AbilityRecord& tranquility_() {
    return all_data()[85];
}
const AbilityRecord& scout_() {
    return all_data()[86];
}
const AbilityRecord& searing_arrows_() {
    return all_data()[87];
}
const AbilityRecord& starfall_() {
    return all_data()[88];
}
const AbilityRecord& fanofknives_() {
    return all_data()[89];
}
const AbilityRecord& shadowstrike_() {
    return all_data()[90];
}
const AbilityRecord& blink_() {
    return all_data()[91];
}
const AbilityRecord& vengeance_() {
    return all_data()[92];
}
const AbilityRecord& spiritvengeance_() {
    return all_data()[93];
}
const AbilityRecord& curse_() {
    return all_data()[94];
}
const AbilityRecord& antimagicshell_() {
    return all_data()[95];
}
const AbilityRecord& possession_() {
    return all_data()[96];
}
const AbilityRecord& web_() {
    return all_data()[97];
}
const AbilityRecord& burrow_() {
    return all_data()[98];
}
const AbilityRecord& stoneform_() {
    return all_data()[99];
}
const AbilityRecord& cripple_() {
    return all_data()[100];
}
const AbilityRecord& unholyfrenzy_() {
    return all_data()[101];
}
const AbilityRecord& raisedead_() {
    return all_data()[102];
}
const AbilityRecord& destroyer_() {
    return all_data()[103];
}
const AbilityRecord& essenceofblight_() {
    return all_data()[104];
}
const AbilityRecord& spirittouch_() {
    return all_data()[105];
}
const AbilityRecord& absorbmana_() {
    return all_data()[106];
}
const AbilityRecord& orbofannihilation_() {
    return all_data()[107];
}
const AbilityRecord& devourmagic_() {
    return all_data()[108];
}
const AbilityRecord& impale_() {
    return all_data()[109];
}
const AbilityRecord& carrionbeetles_() {
    return all_data()[110];
}
const AbilityRecord& locustswarm_() {
    return all_data()[111];
}
const AbilityRecord& burrowscarab_() {
    return all_data()[112];
}
const AbilityRecord& deathcoil_() {
    return all_data()[113];
}
const AbilityRecord& animatedead_() {
    return all_data()[114];
}
const AbilityRecord& deathpact_() {
    return all_data()[115];
}
const AbilityRecord& carrionswarm_() {
    return all_data()[116];
}
const AbilityRecord& sleep_() {
    return all_data()[117];
}
const AbilityRecord& infernal_() {
    return all_data()[118];
}
const AbilityRecord& frostnova_() {
    return all_data()[119];
}
const AbilityRecord& frostarmor_() {
    return all_data()[120];
}
const AbilityRecord& darkritual_() {
    return all_data()[121];
}
const AbilityRecord& deathanddecay_() {
    return all_data()[122];
}
const AbilityRecord& frostarrows_() {
    return all_data()[123];
}
const AbilityRecord& forked_() {
    return all_data()[124];
}
const AbilityRecord& manashield_() {
    return all_data()[125];
}
const AbilityRecord& tornado_() {
    return all_data()[126];
}
const AbilityRecord& howlofterror_() {
    return all_data()[127];
}
const AbilityRecord& rainoffire_() {
    return all_data()[128];
}
const AbilityRecord& doom_() {
    return all_data()[129];
}
const AbilityRecord& breathoffire_() {
    return all_data()[130];
}
const AbilityRecord& drunkenhaze_() {
    return all_data()[131];
}
const AbilityRecord& stormearthfire_() {
    return all_data()[132];
}
const AbilityRecord& windwalkpanda_() {
    return all_data()[133];
}
const AbilityRecord& tauntpanda_() {
    return all_data()[134];
}
const AbilityRecord& dispelpanda_() {
    return all_data()[135];
}
const AbilityRecord& cyclonepanda_() {
    return all_data()[136];
}
const AbilityRecord& summonhawk_() {
    return all_data()[137];
}
const AbilityRecord& summonquilbeast_() {
    return all_data()[138];
}
const AbilityRecord& summonbear_() {
    return all_data()[139];
}
const AbilityRecord& stampede_() {
    return all_data()[140];
}
const AbilityRecord& blinkbear_() {
    return all_data()[141];
}
const AbilityRecord& silence_() {
    return all_data()[142];
}
const AbilityRecord& lifedrain_() {
    return all_data()[143];
}
const AbilityRecord& blackarrow_() {
    return all_data()[144];
}
const AbilityRecord& charm_() {
    return all_data()[145];
}
const AbilityRecord& clusterrockets_() {
    return all_data()[146];
}
const AbilityRecord& pocket_factory_() {
    return all_data()[147];
}
const AbilityRecord& robogoblin_() {
    return all_data()[148];
}
const AbilityRecord& acidbomb_() {
    return all_data()[149];
}
const AbilityRecord& chemicalrage_() {
    return all_data()[150];
}
const AbilityRecord& healingspray_() {
    return all_data()[151];
}
const AbilityRecord& transmute_() {
    return all_data()[152];
}
const AbilityRecord& summonlavaspawn_() {
    return all_data()[153];
}
const AbilityRecord& incinerate_() {
    return all_data()[154];
}
const AbilityRecord& soulburn_() {
    return all_data()[155];
}
const AbilityRecord& volcano_() {
    return all_data()[156];
}
const AbilityRecord& cargoload_() {
    return all_data()[157];
}
const AbilityRecord& cargounload_() {
    return all_data()[158];
}
const AbilityRecord& kaboom_() {
    return all_data()[159];
}

} // namespace tarnic
