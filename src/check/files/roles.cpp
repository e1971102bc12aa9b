// SPDX-License-Identifier: MIT
#include "check/files/roles.h"

#include <array>

#include "check/files/names.h"

namespace orrerix::check {
namespace {

struct NamedRole {
  std::string_view Key;
  check::Role Role;
};

constexpr std::array kRoles = std::to_array<NamedRole>({
    {"asteroids", Role::Asteroids},
    {"bodyparts", Role::BodyParts},
    {"debris", Role::Debris},
    {"effects", Role::Effects},
    {"equipment", Role::Equipment},
    {"explosions", Role::Explosions},
    {"faction_props", Role::FactionProps},
    {"fuses", Role::Fuses},
    {"goods", Role::Goods},
    {"groups", Role::Groups},
    {"loadouts", Role::Loadouts},
    {"markets", Role::Markets},
    {"mbases", Role::MBases},
    {"npcships", Role::NpcShips},
    {"ships", Role::Ships},
    {"solar", Role::Solar},
    {"sounds", Role::Sounds},
    {"stars", Role::Stars},
    {"system", Role::System},
    {"universe", Role::Universe},
    {"voices", Role::Voices},
    {"weaponmoddb", Role::WeaponModDb},
});

}  // namespace

Role RoleOfKey(std::string_view key) {
  const std::string folded = FoldName(key);
  for (const NamedRole& each : kRoles) {
    if (each.Key == folded) return each.Role;
  }
  return Role::Other;
}

}  // namespace orrerix::check
