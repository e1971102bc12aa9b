// SPDX-License-Identifier: MIT
#include "check/rules/loadout_rules.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include <fmt/format.h>

namespace orrerix::check {
namespace {

// Equipment that takes a hardpoint for itself.
constexpr std::array<std::string_view, 5> kMounted = {"gun", "thruster", "shieldgenerator",
                                                      "minedropper", "countermeasuredropper"};

class LoadoutRules {
 public:
  LoadoutRules(const CheckedGame& game, Findings& findings)
      : game_(game),
        findings_(findings),
        archetype_(game.Files.Names().Find("archetype")),
        equip_(game.Files.Names().Find("equip")),
        hpType_(game.Files.Names().Find("hp_type")) {}

  void CheckLoadout(const IniSection& loadout) {
    const auto* hardpoints = HardpointsOfShip(loadout);
    std::map<std::string, const IniEntry*> taken;
    for (const IniEntry& entry : loadout.Entries) {
      if (entry.Name != equip_ || entry.At(2).empty() || !IsMounted(entry.At(1))) continue;
      const std::string hardpoint = FoldName(entry.At(2));
      if (hardpoints != nullptr && !hardpoints->contains(hardpoint)) {
        findings_.Add(Rule::HardpointUnknown, AtEntry(loadout, entry),
                      fmt::format("the ship lists no such hardpoint: {}", entry.At(2)));
      }
      const auto [first, isNew] = taken.emplace(hardpoint, &entry);
      if (isNew) continue;
      findings_.Add(Rule::HardpointTwice, AtEntry(loadout, entry),
                    fmt::format("the hardpoint is taken by {} at line {}: {}", first->second->At(1),
                                first->second->Line, entry.At(2)),
                    {PlaceOf(AtEntry(loadout, *first->second))});
    }
  }

 private:
  bool IsMounted(std::string_view item) const {
    const IniSection* found = game_.Known.Find(Kind::Equipment, item);
    if (found == nullptr) return false;
    const std::string& name = game_.Files.Names().Text(found->Id);
    return std::find(kMounted.begin(), kMounted.end(), name) != kMounted.end();
  }

  // What the hp_type lines of a loadout's ship list, in lower case; null without such lines.
  const std::set<std::string>* HardpointsOfShip(const IniSection& loadout) {
    const IniEntry* archetype = loadout.First(archetype_);
    const IniSection* ship =
        archetype == nullptr ? nullptr : game_.Known.Find(Kind::Ship, archetype->At(1));
    if (ship == nullptr || ship->First(hpType_) == nullptr) return nullptr;
    const auto [known, isNew] = hardpoints_.try_emplace(ship);
    if (!isNew) return &known->second;
    for (const IniEntry& entry : ship->Entries) {
      if (entry.Name != hpType_) continue;
      const auto values = entry.Values();
      for (std::size_t i = 1; i < values.size(); ++i) known->second.insert(FoldName(values[i]));
    }
    return &known->second;
  }

  const CheckedGame& game_;
  Findings& findings_;
  NameId archetype_;
  NameId equip_;
  NameId hpType_;
  std::map<const IniSection*, std::set<std::string>> hardpoints_;
};

}  // namespace

void CheckLoadouts(const CheckedGame& game, Findings& findings) {
  LoadoutRules rules(game, findings);
  for (const IniSection* loadout : game.Known.All(Kind::Loadout)) rules.CheckLoadout(*loadout);
}

}  // namespace orrerix::check
