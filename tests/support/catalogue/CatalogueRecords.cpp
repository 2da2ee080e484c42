#include "support/catalogue/CatalogueRecords.h"

#include <array>

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

std::span<const NamedRecord> namedRecords() {
    static constexpr std::array<NamedRecord, 160> records = {{
        {"move_", &move_},
        {"attack_", &attack_},
        {"stop_", &stop_},
        {"hold_", &hold_},
        {"patrol_", &patrol_},
        {"attack_ground_", &attack_ground_},
        {"repair_", &repair_},
        {"calltoArms_", &calltoArms_},
        {"defend_", &defend_},
        {"aerialShackles_", &aerialShackles_},
        {"cloud_", &cloud_},
        {"heal_", &heal_},
        {"dispel_magic_", &dispel_magic_},
        {"inner_fire_", &inner_fire_},
        {"flare_", &flare_},
        {"slow_", &slow_},
        {"invisibility_", &invisibility_},
        {"polymorph_", &polymorph_},
        {"spell_steal_", &spell_steal_},
        {"control_magic_", &control_magic_},
        {"reveal_", &reveal_},
        {"flame_strike_", &flame_strike_},
        {"banish_", &banish_},
        {"siphon_mana_", &siphon_mana_},
        {"phoenix_", &phoenix_},
        {"blizzard_", &blizzard_},
        {"water_elemental_", &water_elemental_},
        {"mass_teleport_", &mass_teleport_},
        {"storm_bolt_", &storm_bolt_},
        {"thunder_clap_", &thunder_clap_},
        {"avatar_", &avatar_},
        {"holy_light_", &holy_light_},
        {"divine_shield_", &divine_shield_},
        {"resurrection_", &resurrection_},
        {"berserk_", &berserk_},
        {"devour_", &devour_},
        {"ensnare_", &ensnare_},
        {"purge_", &purge_},
        {"bloodlust_", &bloodlust_},
        {"lightning_shield_", &lightning_shield_},
        {"unstable_concoction_", &unstable_concoction_},
        {"spirit_link_", &spirit_link_},
        {"disenchant_", &disenchant_},
        {"ancestral_spirit_", &ancestral_spirit_},
        {"ethereal_form_", &ethereal_form_},
        {"sentry_ward_", &sentry_ward_},
        {"stasis_trapspell_", &stasis_trapspell_},
        {"healing_ward_", &healing_ward_},
        {"wind_walk_", &wind_walk_},
        {"mirror_image_", &mirror_image_},
        {"bladestorm_", &bladestorm_},
        {"shockwave_", &shockwave_},
        {"war_stomp_", &war_stomp_},
        {"chain_lightning_", &chain_lightning_},
        {"far_sight_", &far_sight_},
        {"feral_spirit_", &feral_spirit_},
        {"earthquake_", &earthquake_},
        {"healing_wave_", &healing_wave_},
        {"hex_", &hex_},
        {"serpent_ward_", &serpent_ward_},
        {"voodoo_", &voodoo_},
        {"detonate_", &detonate_},
        {"renew_", &renew_},
        {"mount_hippogryph_", &mount_hippogryph_},
        {"sentinel_", &sentinel_},
        {"roar_", &roar_},
        {"rejuvenation_", &rejuvenation_},
        {"bear_form_", &bear_form_},
        {"dryad_dispel_magic_", &dryad_dispel_magic_},
        {"faerie_fire_", &faerie_fire_},
        {"cyclone_", &cyclone_},
        {"crow_form_", &crow_form_},
        {"grab_tree_", &grab_tree_},
        {"taunt_", &taunt_},
        {"phase_shift_", &phase_shift_},
        {"mana_flare_", &mana_flare_},
        {"eat_tree_", &eat_tree_},
        {"root_", &root_},
        {"gold_mine_", &gold_mine_},
        {"replenish_", &replenish_},
        {"mana_burn_", &mana_burn_},
        {"immolation_", &immolation_},
        {"metamorphosis_", &metamorphosis_},
        {"roots_", &roots_},
        {"forceofnature_", &forceofnature_},
        {"tranquility_", &tranquility_},
        {"scout_", &scout_},
        {"searing_arrows_", &searing_arrows_},
        {"starfall_", &starfall_},
        {"fanofknives_", &fanofknives_},
        {"shadowstrike_", &shadowstrike_},
        {"blink_", &blink_},
        {"vengeance_", &vengeance_},
        {"spiritvengeance_", &spiritvengeance_},
        {"curse_", &curse_},
        {"antimagicshell_", &antimagicshell_},
        {"possession_", &possession_},
        {"web_", &web_},
        {"burrow_", &burrow_},
        {"stoneform_", &stoneform_},
        {"cripple_", &cripple_},
        {"unholyfrenzy_", &unholyfrenzy_},
        {"raisedead_", &raisedead_},
        {"destroyer_", &destroyer_},
        {"essenceofblight_", &essenceofblight_},
        {"spirittouch_", &spirittouch_},
        {"absorbmana_", &absorbmana_},
        {"orbofannihilation_", &orbofannihilation_},
        {"devourmagic_", &devourmagic_},
        {"impale_", &impale_},
        {"carrionbeetles_", &carrionbeetles_},
        {"locustswarm_", &locustswarm_},
        {"burrowscarab_", &burrowscarab_},
        {"deathcoil_", &deathcoil_},
        {"animatedead_", &animatedead_},
        {"deathpact_", &deathpact_},
        {"carrionswarm_", &carrionswarm_},
        {"sleep_", &sleep_},
        {"infernal_", &infernal_},
        {"frostnova_", &frostnova_},
        {"frostarmor_", &frostarmor_},
        {"darkritual_", &darkritual_},
        {"deathanddecay_", &deathanddecay_},
        {"frostarrows_", &frostarrows_},
        {"forked_", &forked_},
        {"manashield_", &manashield_},
        {"tornado_", &tornado_},
        {"howlofterror_", &howlofterror_},
        {"rainoffire_", &rainoffire_},
        {"doom_", &doom_},
        {"breathoffire_", &breathoffire_},
        {"drunkenhaze_", &drunkenhaze_},
        {"stormearthfire_", &stormearthfire_},
        {"windwalkpanda_", &windwalkpanda_},
        {"tauntpanda_", &tauntpanda_},
        {"dispelpanda_", &dispelpanda_},
        {"cyclonepanda_", &cyclonepanda_},
        {"summonhawk_", &summonhawk_},
        {"summonquilbeast_", &summonquilbeast_},
        {"summonbear_", &summonbear_},
        {"stampede_", &stampede_},
        {"blinkbear_", &blinkbear_},
        {"silence_", &silence_},
        {"lifedrain_", &lifedrain_},
        {"blackarrow_", &blackarrow_},
        {"charm_", &charm_},
        {"clusterrockets_", &clusterrockets_},
        {"pocket_factory_", &pocket_factory_},
        {"robogoblin_", &robogoblin_},
        {"acidbomb_", &acidbomb_},
        {"chemicalrage_", &chemicalrage_},
        {"healingspray_", &healingspray_},
        {"transmute_", &transmute_},
        {"summonlavaspawn_", &summonlavaspawn_},
        {"incinerate_", &incinerate_},
        {"soulburn_", &soulburn_},
        {"volcano_", &volcano_},
        {"cargoload_", &cargoload_},
        {"cargounload_", &cargounload_},
        {"kaboom_", &kaboom_},
    }};
    return records;
}

} // namespace tarnic
