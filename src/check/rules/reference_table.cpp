// SPDX-License-Identifier: MIT
#include "check/rules/reference_table.h"

namespace orrerix::check {
namespace {

constexpr bool kFirstLineOnly = true;

SectionSelector InSystem(std::vector<std::string_view> names) {
  return {{Role::System}, std::move(names)};
}

SectionSelector InMBases(std::vector<std::string_view> names) {
  return {{Role::MBases}, std::move(names)};
}

std::vector<Reference> Table() {
  const SectionSelector archetypes = OfArchetypes();
  const SectionSelector launchers = OfEquipment({"gun", "minedropper", "countermeasuredropper"});
  const SectionSelector exploding = {{Role::Equipment, Role::Explosions},
                                     {"munition", "mine", "explosion"}};
  const SectionSelector good = Of(Kind::Good);
  const SectionSelector object = Of(Kind::Object);
  const SectionSelector zone = Of(Kind::Zone);
  const SectionSelector person = Of(Kind::Npc);
  const SectionSelector baseGood = {{Role::Markets}, {"basegood"}};
  const SectionSelector factionProps = {{Role::FactionProps}, {"factionprops"}};
  const SectionSelector fields = InSystem({"asteroids", "nebula"});

  return {
      {Rule::GoodPart, good, "equipment", Target::Equipment},
      {Rule::GoodPart, good, "addon", Target::Equipment},
      {Rule::GoodPart, good, "ship", Target::Ship},
      {Rule::GoodPart, good, "hull", Target::Good},
      {Rule::GoodPart, good, "free_ammo", Target::Good},

      {Rule::EquipmentPart, launchers, "projectile_archetype", Target::Ammunition},
      {Rule::EquipmentPart, OfEquipment({"munition"}), "motor", Target::Motor},
      {Rule::EquipmentPart, archetypes, "explosion_arch", Target::Explosion},
      {Rule::EquipmentPart, archetypes, "loot_appearance", Target::LootCrate},
      {Rule::EquipmentPart, archetypes, "pod_appearance", Target::CargoPod},
      {Rule::EquipmentPart, archetypes, "debris_type", Target::Debris},

      {Rule::WeaponTypeUnknown, exploding, "weapon_type", Target::WeaponType},
      {Rule::WeaponTypeUnknown, OfEquipment({"shieldgenerator"}), "shield_type", Target::ShieldType,
       1, kFirstLineOnly},

      {Rule::EffectUnknown, archetypes, "effect", Target::Effect},
      {Rule::EffectUnknown, archetypes, "*_effect", Target::Effect},
      {Rule::EffectUnknown, archetypes, "particles", Target::Effect},
      {Rule::EffectUnknown, archetypes, "flash_particle_name", Target::Effect},
      {Rule::EffectUnknown, archetypes, "shield_collapse_particle", Target::Effect},
      {Rule::EffectUnknown, archetypes, "trail_effect_player", Target::Effect},
      {Rule::EffectUnknown, archetypes, "shield_hit_effects", Target::Effect, 2},
      {Rule::EffectUnknown, archetypes, "surface_hit_effects", Target::Effect, 2},
      {Rule::EffectUnknown, InSystem({"zone", "dust"}), "spacedust", Target::Effect},
      {Rule::EffectUnknown, archetypes, "fuse", Target::Fuse},
      {Rule::EffectUnknown, Of(Kind::Effect), "vis_effect", Target::VisualOrEffect},
      {Rule::EffectUnknown, Of(Kind::Effect), "vis_beam", Target::VisualOrEffect},
      {Rule::EffectUnknown, Of(Kind::Effect), "vis_generic", Target::VisualOrEffect},

      {Rule::SoundUnknown, archetypes, "*_sound", Target::Sound},
      {Rule::SoundUnknown, archetypes, "*_snd", Target::Sound},
      {Rule::SoundUnknown, Of(Kind::Effect), "snd_effect", Target::Sound},
      {Rule::SoundUnknown, InSystem({"music"}), "space", Target::Sound},
      {Rule::SoundUnknown, InSystem({"music"}), "danger", Target::Sound},
      {Rule::SoundUnknown, InSystem({"music"}), "battle", Target::Sound},
      {Rule::SoundUnknown, zone, "music", Target::Sound},

      {Rule::LoadoutArchetype, Of(Kind::Loadout), "archetype", Target::ShipSolarOrSimple},
      {Rule::LoadoutItem, Of(Kind::Loadout), "equip", Target::Equipment},
      {Rule::LoadoutItem, Of(Kind::Loadout), "cargo", Target::Equipment},

      {Rule::MarketBase, baseGood, "base", Target::Base},
      {Rule::MarketGood, baseGood, "marketgood", Target::Good},

      {Rule::BaseSystem, Of(Kind::Base), "system", Target::System, 1, false,
       NoValue::WhenMissingOrEmpty},

      {Rule::ObjectArchetype, object, "archetype", Target::Solar},
      {Rule::ObjectLoadout, object, "loadout", Target::Loadout},
      {Rule::ObjectStar, object, "star", Target::Star},
      {Rule::ObjectBase, object, "base", Target::Base},
      {Rule::ObjectBase, object, "dock_with", Target::Base},

      {Rule::FactionUnknown, Of(Kind::Faction), "rep", Target::Faction, 2},
      {Rule::FactionUnknown, object, "reputation", Target::Faction},
      {Rule::FactionUnknown, zone, "faction", Target::Faction},
      {Rule::FactionUnknown, InSystem({"systeminfo"}), "local_faction", Target::Faction},
      {Rule::FactionUnknown, InMBases({"mbase"}), "local_faction", Target::Faction},
      {Rule::FactionUnknown, InMBases({"basefaction"}), "faction", Target::Faction},
      {Rule::FactionUnknown, person, "affiliation", Target::Faction},
      {Rule::FactionUnknown, person, "bribe", Target::Faction},
      {Rule::FactionUnknown, factionProps, "affiliation", Target::Faction},

      {Rule::MBaseBase, InMBases({"mbase"}), "nickname", Target::Base},

      {Rule::MBasePart, person, "body", Target::Body},
      {Rule::MBasePart, person, "head", Target::Body},
      {Rule::MBasePart, person, "lefthand", Target::Body},
      {Rule::MBasePart, person, "righthand", Target::Body},
      {Rule::MBasePart, person, "accessory", Target::Body},
      {Rule::MBasePart, person, "voice", Target::Voice},
      {Rule::MBasePart, person, "room", Target::RoomOfMBase, 1, kFirstLineOnly},
      {Rule::MBasePart, InMBases({"basefaction"}), "npc", Target::NpcOfMBase},
      {Rule::MBasePart, InMBases({"mroom"}), "fixture", Target::NpcOfMBase},

      {Rule::NpcShipUnknown, factionProps, "npc_ship", Target::NpcShip},
      {Rule::NpcShipUnknown, Of(Kind::NpcShip), "loadout", Target::Loadout},
      {Rule::NpcShipUnknown, Of(Kind::NpcShip), "ship_archetype", Target::Ship},

      {Rule::ObjectParent, object, "parent", Target::ObjectOfFile, 1, kFirstLineOnly},
      {Rule::FieldZone, fields, "zone", Target::ZoneOfFile, 1, kFirstLineOnly,
       NoValue::WhenMissing},
      {Rule::ZoneEncounter, zone, "encounter", Target::EncounterOfFile},

      {Rule::GotoTarget, object, "goto", Target::System, 1, kFirstLineOnly},
  };
}

}  // namespace

std::span<const Reference> References() {
  static const std::vector<Reference> table = Table();
  return table;
}

}  // namespace orrerix::check
