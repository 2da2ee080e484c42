#pragma once

#include "core/catalogue/Catalogue.h"

#include <span>
#include <string_view>

namespace tarnic {

// Every record of the catalogue by its own name, in catalogue order, for the tests. Each is the
// element of all_data() at its row, so it is built on first use like the rest of the catalogue.
const AbilityRecord& move_();
const AbilityRecord& attack_();
const AbilityRecord& stop_();
const AbilityRecord& hold_();
const AbilityRecord& patrol_();
const AbilityRecord& attack_ground_();
const AbilityRecord& repair_();
const AbilityRecord& calltoArms_();
const AbilityRecord& defend_();
const AbilityRecord& aerialShackles_();
const AbilityRecord& cloud_();
const AbilityRecord& heal_();
const AbilityRecord& dispel_magic_();
const AbilityRecord& inner_fire_();
const AbilityRecord& flare_();
const AbilityRecord& slow_();
const AbilityRecord& invisibility_();
const AbilityRecord& polymorph_();
const AbilityRecord& spell_steal_();
const AbilityRecord& control_magic_();
const AbilityRecord& reveal_();
const AbilityRecord& flame_strike_();
const AbilityRecord& banish_();
const AbilityRecord& siphon_mana_();
const AbilityRecord& phoenix_();
const AbilityRecord& blizzard_();
const AbilityRecord& water_elemental_();
const AbilityRecord& mass_teleport_();
const AbilityRecord& storm_bolt_();
const AbilityRecord& thunder_clap_();
const AbilityRecord& avatar_();
const AbilityRecord& holy_light_();
const AbilityRecord& divine_shield_();
const AbilityRecord& resurrection_();
const AbilityRecord& berserk_();
const AbilityRecord& devour_();
const AbilityRecord& ensnare_();
const AbilityRecord& purge_();
const AbilityRecord& bloodlust_();
const AbilityRecord& lightning_shield_();
const AbilityRecord& unstable_concoction_();
const AbilityRecord& spirit_link_();
const AbilityRecord& disenchant_();
const AbilityRecord& ancestral_spirit_();
const AbilityRecord& ethereal_form_();
const AbilityRecord& sentry_ward_();
const AbilityRecord& stasis_trapspell_();
const AbilityRecord& healing_ward_();
const AbilityRecord& wind_walk_();
const AbilityRecord& mirror_image_();
const AbilityRecord& bladestorm_();
const AbilityRecord& shockwave_();
const AbilityRecord& war_stomp_();
const AbilityRecord& chain_lightning_();
const AbilityRecord& far_sight_();
const AbilityRecord& feral_spirit_();
const AbilityRecord& earthquake_();
const AbilityRecord& healing_wave_();
const AbilityRecord& hex_();
const AbilityRecord& serpent_ward_();
const AbilityRecord& voodoo_();
const AbilityRecord& detonate_();
const AbilityRecord& renew_();
const AbilityRecord& mount_hippogryph_();
const AbilityRecord& sentinel_();
const AbilityRecord& roar_();
const AbilityRecord& rejuvenation_();
const AbilityRecord& bear_form_();
const AbilityRecord& dryad_dispel_magic_();
const AbilityRecord& faerie_fire_();
const AbilityRecord& cyclone_();
const AbilityRecord& crow_form_();
const AbilityRecord& grab_tree_();
const AbilityRecord& taunt_();
const AbilityRecord& phase_shift_();
const AbilityRecord& mana_flare_();
const AbilityRecord& eat_tree_();
const AbilityRecord& root_();
const AbilityRecord& gold_mine_();
const AbilityRecord& replenish_();
const AbilityRecord& mana_burn_();
const AbilityRecord& immolation_();
const AbilityRecord& metamorphosis_();
const AbilityRecord& roots_();
const AbilityRecord& forceofnature_();
const AbilityRecord& tranquility_();
const AbilityRecord& scout_();
const AbilityRecord& searing_arrows_();
const AbilityRecord& starfall_();
const AbilityRecord& fanofknives_();
const AbilityRecord& shadowstrike_();
const AbilityRecord& blink_();
const AbilityRecord& vengeance_();
const AbilityRecord& spiritvengeance_();
const AbilityRecord& curse_();
const AbilityRecord& antimagicshell_();
const AbilityRecord& possession_();
const AbilityRecord& web_();
const AbilityRecord& burrow_();
const AbilityRecord& stoneform_();
const AbilityRecord& cripple_();
const AbilityRecord& unholyfrenzy_();
const AbilityRecord& raisedead_();
const AbilityRecord& destroyer_();
const AbilityRecord& essenceofblight_();
const AbilityRecord& spirittouch_();
const AbilityRecord& absorbmana_();
const AbilityRecord& orbofannihilation_();
const AbilityRecord& devourmagic_();
const AbilityRecord& impale_();
const AbilityRecord& carrionbeetles_();
const AbilityRecord& locustswarm_();
const AbilityRecord& burrowscarab_();
const AbilityRecord& deathcoil_();
const AbilityRecord& animatedead_();
const AbilityRecord& deathpact_();
const AbilityRecord& carrionswarm_();
const AbilityRecord& sleep_();
const AbilityRecord& infernal_();
const AbilityRecord& frostnova_();
const AbilityRecord& frostarmor_();
const AbilityRecord& darkritual_();
const AbilityRecord& deathanddecay_();
const AbilityRecord& frostarrows_();
const AbilityRecord& forked_();
const AbilityRecord& manashield_();
const AbilityRecord& tornado_();
const AbilityRecord& howlofterror_();
const AbilityRecord& rainoffire_();
const AbilityRecord& doom_();
const AbilityRecord& breathoffire_();
const AbilityRecord& drunkenhaze_();
const AbilityRecord& stormearthfire_();
const AbilityRecord& windwalkpanda_();
const AbilityRecord& tauntpanda_();
const AbilityRecord& dispelpanda_();
const AbilityRecord& cyclonepanda_();
const AbilityRecord& summonhawk_();
const AbilityRecord& summonquilbeast_();
const AbilityRecord& summonbear_();
const AbilityRecord& stampede_();
const AbilityRecord& blinkbear_();
const AbilityRecord& silence_();
const AbilityRecord& lifedrain_();
const AbilityRecord& blackarrow_();
const AbilityRecord& charm_();
const AbilityRecord& clusterrockets_();
const AbilityRecord& pocket_factory_();
const AbilityRecord& robogoblin_();
const AbilityRecord& acidbomb_();
const AbilityRecord& chemicalrage_();
const AbilityRecord& healingspray_();
const AbilityRecord& transmute_();
const AbilityRecord& summonlavaspawn_();
const AbilityRecord& incinerate_();
const AbilityRecord& soulburn_();
const AbilityRecord& volcano_();
const AbilityRecord& cargoload_();
const AbilityRecord& cargounload_();
const AbilityRecord& kaboom_();

// A record's name beside its accessor.
struct NamedRecord {
    std::string_view name;
    const AbilityRecord& (*record)();
};

// All 160, in catalogue order.
std::span<const NamedRecord> namedRecords();

} // namespace tarnic
