// SPDX-License-Identifier: MIT
#include "check/rules/references.h"

#include <algorithm>

#include <fmt/format.h>

namespace orrerix::check {
namespace {

struct TargetInfo {
  check::Target Target;
  std::string_view Name;
  std::vector<Kind> Kinds;
  std::vector<std::string_view> Sections;  // only these, in lower case; empty: all of the kinds
  bool IsLocal = false;                    // of the same file or base, which is there
};

const std::vector<TargetInfo>& Targets() {
  constexpr bool local = true;
  // In the order of Target.
  static const std::vector<TargetInfo> targets = {
      {Target::Ammunition,
       "Munition, Mine or CounterMeasure",
       {Kind::Equipment},
       {"munition", "mine", "countermeasure"}},
      {Target::Base, "base", {Kind::Base}, {}},
      {Target::Body, "body", {Kind::Body}, {}},
      {Target::CargoPod, "CargoPod", {Kind::Equipment}, {"cargopod"}},
      {Target::Debris, "debris", {Kind::Debris}, {}},
      {Target::Effect, "effect", {Kind::Effect}, {}},
      {Target::EncounterOfFile, "encounter", {Kind::Encounter}, {}, local},
      {Target::Equipment, "equipment", {Kind::Equipment}, {}},
      {Target::Explosion, "explosion", {Kind::Explosion}, {}},
      {Target::Faction, "faction", {Kind::Faction}, {}},
      {Target::Fuse, "fuse", {Kind::Fuse}, {}},
      {Target::Good, "good", {Kind::Good}, {}},
      {Target::Loadout, "loadout", {Kind::Loadout}, {}},
      {Target::LootCrate, "LootCrate", {Kind::Equipment}, {"lootcrate"}},
      {Target::Motor, "motor", {Kind::Motor}, {}},
      {Target::NpcOfMBase, "npc", {Kind::Npc}, {}, local},
      {Target::NpcShip, "npcship", {Kind::NpcShip}, {}},
      {Target::ObjectOfFile, "object", {Kind::Object}, {}, local},
      {Target::RoomOfMBase, "room", {Kind::Room}, {}, local},
      {Target::ShieldType, "shield type", {Kind::WeaponType}, {}},
      {Target::Ship, "ship", {Kind::Ship}, {}},
      {Target::ShipSolarOrSimple,
       "ship, solar or simple",
       {Kind::Ship, Kind::Solar, Kind::Simple},
       {}},
      {Target::Solar, "solar", {Kind::Solar}, {}},
      {Target::Sound, "sound", {Kind::Sound}, {}},
      {Target::Star, "star", {Kind::Star}, {}},
      {Target::System, "system", {Kind::System}, {}},
      {Target::VisualOrEffect, "visual or effect", {Kind::Visual, Kind::Effect}, {}},
      {Target::Voice, "voice", {Kind::Voice}, {}},
      {Target::WeaponType, "weapontype", {Kind::WeaponType}, {}},
      {Target::ZoneOfFile, "zone", {Kind::Zone}, {}, local},
  };
  return targets;
}

const TargetInfo& InfoOf(Target target) {
  return Targets()[static_cast<std::size_t>(target)];
}

std::string DoesNotExist(Target target, std::string_view value) {
  return fmt::format("{} does not exist: {}", InfoOf(target).Name, value);
}

}  // namespace

ReferenceRules::ReferenceRules(const CheckedGame& game) : game_(game) {
  const NameId shieldMod = game.Files.Names().Find("shield_mod");
  for (const IniSection* type : game.Known.All(Kind::WeaponType)) {
    for (const IniEntry& entry : type->Entries) {
      if (entry.Name == shieldMod) shieldTypes_.insert(FoldName(entry.At(1)));
    }
  }
  for (const TargetInfo& target : Targets()) {
    isComplete_.push_back(target.IsLocal ||
                          std::all_of(target.Kinds.begin(), target.Kinds.end(),
                                      [&](Kind kind) { return game.Known.IsComplete(kind); }));
  }
}

bool ReferenceRules::IsComplete(Target target) const {
  return isComplete_[static_cast<std::size_t>(target)];
}

bool ReferenceRules::Exists(Target target, std::string_view value,
                            const IniSection& section) const {
  if (target == Target::ShieldType) {
    return shieldTypes_.contains(FoldName(value));
  }
  if (target == Target::ObjectOfFile) {
    return game_.Known.FindObjectIn(*section.File, value) != nullptr;
  }
  const TargetInfo& info = InfoOf(target);
  for (const Kind kind : info.Kinds) {
    const IniSection* found = game_.Known.Find(kind, value, &section);
    if (found == nullptr) continue;
    if (info.Sections.empty()) return true;
    const std::string& name = game_.Files.Names().Text(found->Id);
    if (std::find(info.Sections.begin(), info.Sections.end(), name) != info.Sections.end()) {
      return true;
    }
  }
  return false;
}

void ReferenceRules::CheckLine(const Reference& reference, const IniSection& section,
                               const IniEntry& entry, Findings& findings) const {
  if (!IsComplete(reference.Target)) return;
  if (reference.IsFirstLineOnly && section.First(entry.Name) != &entry) return;
  const std::string_view value = entry.At(reference.ValueNumber);
  const bool isDue = value.empty() ? reference.NoValue == NoValue::WhenMissingOrEmpty
                                   : !Exists(reference.Target, value, section);
  if (!isDue) return;
  findings.Add(reference.Rule, AtEntry(section, entry), DoesNotExist(reference.Target, value));
}

void ReferenceRules::CheckMissingLines(Findings& findings) const {
  for (const Reference& reference : References()) {
    if (reference.NoValue == NoValue::IsSilent || !IsComplete(reference.Target)) continue;
    const NameId key = game_.Files.Names().Find(reference.Key);
    for (const IniFile* file : game_.Files.InisWith(reference.Sections.Roles)) {
      for (const IniSection& section : file->Sections()) {
        const std::string& name = game_.Files.Names().Text(section.Id);
        if (!reference.Sections.Matches(game_.Files.RolesOf(*file), name)) continue;
        if (section.First(key) != nullptr) continue;
        findings.Add(reference.Rule, AtHeader(section), DoesNotExist(reference.Target, ""));
      }
    }
  }
}

}  // namespace orrerix::check
