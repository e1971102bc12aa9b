// SPDX-License-Identifier: MIT
#include "check/rules/faction_rules.h"

#include <map>

#include <fmt/format.h>

#include "check/model/numbers.h"

namespace orrerix::check {
namespace {

// The last rep line of a faction for each other one, by nickname in lower case.
using Relations = std::map<std::string, const IniEntry*>;

struct Faction {
  const IniSection* Section;
  Relations Opinions;
};

using Factions = std::map<std::string, Faction>;

Factions ReadFactions(const CheckedGame& game) {
  const NameId rep = game.Files.Names().Find("rep");
  Factions factions;
  for (const IniSection* group : game.Known.All(Kind::Faction)) {
    if (group->Nickname().empty()) continue;
    const auto [known, isNew] = factions.try_emplace(FoldName(group->Nickname()));
    if (!isNew) continue;
    known->second.Section = group;
    for (const IniEntry& entry : group->Entries) {
      if (entry.Name == rep) known->second.Opinions[FoldName(entry.At(2))] = &entry;
    }
  }
  return factions;
}

void CheckOpinions(const Factions& factions, const Faction& faction, Findings& findings) {
  for (const auto& [name, other] : factions) {
    if (faction.Opinions.contains(name)) continue;
    findings.Add(Rule::RelationMissing, AtHeader(*faction.Section),
                 fmt::format("rep is missing for faction: {}", other.Section->Nickname()));
  }
}

void CheckSymmetry(const Factions& factions, const std::string& name, const Faction& faction,
                   Findings& findings) {
  for (auto next = factions.upper_bound(name); next != factions.end(); ++next) {
    const auto there = faction.Opinions.find(next->first);
    const auto back = next->second.Opinions.find(name);
    if (there == faction.Opinions.end() || back == next->second.Opinions.end()) continue;
    const auto one = ParseNumber(there->second->At(1));
    const auto other = ParseNumber(back->second->At(1));
    if (!one || !other || *one == *other) continue;
    findings.Add(
        Rule::RelationAsymmetric, AtEntry(*faction.Section, *there->second),
        fmt::format("{} thinks {} of {}, who thinks {}", faction.Section->Nickname(),
                    there->second->At(1), next->second.Section->Nickname(), back->second->At(1)),
        {PlaceOf(AtEntry(*next->second.Section, *back->second))});
  }
}

}  // namespace

void CheckFactions(const CheckedGame& game, Findings& findings) {
  const Factions factions = ReadFactions(game);
  for (const auto& [name, faction] : factions) {
    CheckOpinions(factions, faction, findings);
    CheckSymmetry(factions, name, faction, findings);
  }
}

}  // namespace orrerix::check
