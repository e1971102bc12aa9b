// SPDX-License-Identifier: MIT
// Which sections of which files define what.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "check/files/roles.h"

namespace orrerix::check {

enum class Kind : std::uint8_t {
  Equipment,
  Motor,
  Explosion,
  Debris,
  Good,
  WeaponType,
  Loadout,
  Ship,
  Simple,
  Solar,
  Star,
  Faction,
  System,
  Base,
  Object,
  Zone,
  Encounter,
  MBase,
  Npc,
  Room,
  NpcShip,
  Effect,
  Visual,
  Fuse,
  Sound,
  Voice,
  Body,
};
inline constexpr int kKindCount = static_cast<int>(Kind::Body) + 1;

// Within what nicknames of a kind are unique.
enum class KindScope { Game, File, MBase };

struct KindInfo {
  check::Kind Kind;
  std::string_view Name;
  RoleSet Roles;
  std::vector<std::string_view> Sections;  // in lower case
  KindScope Scope = KindScope::Game;
  bool MayRepeatOrLackNickname = false;
};

const KindInfo& InfoOf(Kind kind);
std::span<const KindInfo> AllKinds();

// What a section of a file with these roles defines; null if nothing.
const KindInfo* KindOfSection(RoleSet roles, std::string_view foldedSection);

// Whether a second lead key in such a section starts another one.
bool IsCutAtLeadKey(RoleSet roles, std::string_view foldedSection);

}  // namespace orrerix::check
