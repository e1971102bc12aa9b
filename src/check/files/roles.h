// SPDX-License-Identifier: MIT
// What a data file is for: the key of the configuration that names it.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace orrerix::check {

enum class Role : std::uint8_t {
  Other,  // read, but no rule asks for its content
  Asteroids,
  BodyParts,
  Debris,
  Effects,
  Equipment,
  Explosions,
  FactionProps,
  Fuses,
  Goods,
  Groups,
  Loadouts,
  Markets,
  MBases,
  NpcShips,
  Ships,
  Solar,
  Sounds,
  Stars,
  System,
  Universe,
  Voices,
  WeaponModDb,
};
inline constexpr int kRoleCount = static_cast<int>(Role::WeaponModDb) + 1;

// The role of a key, Other for one that no rule knows.
Role RoleOfKey(std::string_view key);

class RoleSet {
 public:
  constexpr RoleSet() = default;
  constexpr RoleSet(std::initializer_list<Role> roles) {
    for (const Role role : roles) Add(role);
  }

  constexpr void Add(Role role) { bits_ |= 1U << static_cast<unsigned>(role); }
  constexpr bool Has(Role role) const { return (bits_ >> static_cast<unsigned>(role) & 1U) != 0; }
  constexpr bool Meets(RoleSet other) const { return (bits_ & other.bits_) != 0; }
  constexpr std::uint32_t Bits() const { return bits_; }

 private:
  std::uint32_t bits_ = 0;
};

// Roles whose files hold ships, equipment, solars and what comes out of them.
inline constexpr RoleSet kArchetypes = {Role::Equipment, Role::Ships, Role::Solar, Role::Asteroids,
                                        Role::Explosions};

// Roles whose text numbers, shapes of values and keys are checked: all that a rule knows.
inline constexpr RoleSet kKnownRoles = {
    Role::Asteroids,  Role::BodyParts,    Role::Debris, Role::Effects,  Role::Equipment,
    Role::Explosions, Role::FactionProps, Role::Fuses,  Role::Goods,    Role::Groups,
    Role::Loadouts,   Role::Markets,      Role::MBases, Role::NpcShips, Role::Ships,
    Role::Solar,      Role::Sounds,       Role::Stars,  Role::System,   Role::Universe,
    Role::Voices,     Role::WeaponModDb};

}  // namespace orrerix::check
