// SPDX-License-Identifier: MIT
// Which keys name what: the rules that something must exist.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "check/rules/rule.h"
#include "check/rules/selector.h"

namespace orrerix::check {

// What a reference must lead to.
enum class Target : std::uint8_t {
  Ammunition,  // equipment that is fired
  Base,
  Body,
  CargoPod,
  Debris,
  Effect,
  EncounterOfFile,
  Equipment,
  Explosion,
  Faction,
  Fuse,
  Good,
  Loadout,
  LootCrate,
  Motor,
  NpcOfMBase,
  NpcShip,
  ObjectOfFile,
  RoomOfMBase,
  ShieldType,  // first value of any shield_mod
  Ship,
  ShipSolarOrSimple,
  Solar,
  Sound,
  Star,
  System,
  VisualOrEffect,
  Voice,
  WeaponType,
  ZoneOfFile,
};

// A name where a finding is due although there is no value to look up.
enum class NoValue : std::uint8_t { IsSilent, WhenMissing, WhenMissingOrEmpty };

struct Reference {
  check::Rule Rule;
  SectionSelector Sections;
  std::string_view Key;  // in lower case; "*" at its start is any text
  check::Target Target;
  std::size_t ValueNumber = 1;
  bool IsFirstLineOnly = false;
  check::NoValue NoValue = check::NoValue::IsSilent;
};

std::span<const Reference> References();

}  // namespace orrerix::check
