// SPDX-License-Identifier: MIT
#include "check/model/kinds.h"

#include <algorithm>

namespace orrerix::check {
namespace {

const std::vector<KindInfo>& Kinds() {
  static const std::vector<KindInfo> kinds = {
      {Kind::Equipment,
       "equipment",
       {Role::Equipment},
       {"armor",
        "attachedfx",
        "cargopod",
        "cloakingdevice",
        "commodity",
        "countermeasure",
        "countermeasuredropper",
        "engine",
        "gun",
        "internalfx",
        "light",
        "lootcrate",
        "mine",
        "minedropper",
        "munition",
        "power",
        "repairkit",
        "scanner",
        "shield",
        "shieldbattery",
        "shieldgenerator",
        "thruster",
        "tractor",
        "tradelane"}},
      {Kind::Motor, "motor", {Role::Equipment}, {"motor"}},
      {Kind::Explosion, "explosion", {Role::Equipment, Role::Explosions}, {"explosion"}},
      {Kind::Debris, "debris", {Role::Debris, Role::Explosions}, {"debris"}},
      {Kind::Good, "good", {Role::Goods}, {"good"}},
      {Kind::WeaponType, "weapontype", {Role::WeaponModDb}, {"weapontype"}},
      {Kind::Loadout, "loadout", {Role::Loadouts}, {"loadout"}},
      {Kind::Ship, "ship", {Role::Ships}, {"ship"}},
      {Kind::Simple, "simple", {Role::Ships}, {"simple"}},
      {Kind::Solar, "solar", {Role::Solar}, {"solar"}},
      {Kind::Star, "star", {Role::Stars}, {"star"}},
      {Kind::Faction, "faction", {Role::Groups}, {"group"}},
      {Kind::System, "system", {Role::Universe}, {"system"}},
      {Kind::Base, "base", {Role::Universe}, {"base"}},
      {Kind::Object, "object", {Role::System}, {"object"}},
      {Kind::Zone, "zone", {Role::System}, {"zone"}, KindScope::File},
      {Kind::Encounter, "encounter", {Role::System}, {"encounterparameters"}, KindScope::File},
      {Kind::MBase, "mbase", {Role::MBases}, {"mbase"}},
      {Kind::Npc, "npc", {Role::MBases}, {"gf_npc"}, KindScope::MBase},
      {Kind::Room, "room", {Role::MBases}, {"mroom"}, KindScope::MBase},
      {Kind::NpcShip, "npcship", {Role::NpcShips}, {"npcshiparch"}},
      {Kind::Effect, "effect", {Role::Effects}, {"effect"}},
      {Kind::Visual, "visual", {Role::Effects}, {"viseffect", "beamspear", "beambolt"}},
      {Kind::Fuse, "fuse", {Role::Fuses}, {"fuse"}},
      {Kind::Sound, "sound", {Role::Sounds}, {"sound"}},
      {Kind::Voice, "voice", {Role::Voices}, {"voice"}, KindScope::Game, true},
      {Kind::Body,
       "body",
       {Role::BodyParts},
       {"head", "body", "righthand", "lefthand", "accessory"},
       KindScope::Game,
       true},
  };
  return kinds;
}

}  // namespace

const KindInfo& InfoOf(Kind kind) {
  return Kinds()[static_cast<std::size_t>(kind)];
}

std::span<const KindInfo> AllKinds() {
  return Kinds();
}

const KindInfo* KindOfSection(RoleSet roles, std::string_view foldedSection) {
  for (const KindInfo& kind : Kinds()) {
    if (roles.Meets(kind.Roles) && std::find(kind.Sections.begin(), kind.Sections.end(),
                                             foldedSection) != kind.Sections.end()) {
      return &kind;
    }
  }
  return nullptr;
}

bool IsCutAtLeadKey(RoleSet roles, std::string_view foldedSection) {
  if (roles.Has(Role::MBases) && foldedSection == "basefaction") return true;
  if (roles.Has(Role::Markets) && foldedSection == "basegood") return true;
  return KindOfSection(roles, foldedSection) != nullptr;
}

}  // namespace orrerix::check
