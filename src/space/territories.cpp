// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>
#include <unordered_map>

#include "atlas/places.h"
#include "db/values/text.h"
#include "space/read_space.h"

namespace orrerix {
namespace {

// What the systems' own files name: factions by the nickname of the system.
using Owners = std::unordered_map<std::string, std::string>;

Owners LocalFactions(const SourceTables& tables, const SystemBook& systems) {
  Owners owners;
  const SourceTable& rows = tables["systeminfo"];
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    const SystemArea* system = systems.OfFile(rows.Row(i).Text("SourceFileName"));
    const std::string faction = rows.Row(i).Text("local_faction");
    if (system != nullptr && !faction.empty()) owners.try_emplace(system->Nickname, faction);
  }
  return owners;
}

// How much factions own in each system: stations to dock at, and gates.
using Possessions = std::unordered_map<std::string, std::map<std::string, int>>;

Possessions PossessionsOf(const SourceTables& tables, const SystemBook& systems) {
  Possessions possessions;
  const SourceTable& objects = tables["Objects"];
  for (std::size_t i = 0; i < objects.RowCount(); ++i) {
    const SourceRow object = objects.Row(i);
    const SystemArea* system = systems.Find(object.Text("sys_nick"));
    const std::string faction = FoldAscii(object.Text("reputation"));
    const bool counts = !object.Text("dock_with").empty() || !object.Text("goto").empty();
    if (system == nullptr || faction.empty() || !counts) continue;
    ++possessions[system->Nickname][faction];
  }
  return possessions;
}

// Mods leave the local faction of the file that they have copied: it has to own something there.
Owners OwnersOf(const Owners& locals, const Possessions& possessions) {
  Owners owners;
  for (const auto& [system, counts] : possessions) {
    const auto local = locals.find(system);
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](auto& a, auto& b) { return a.second < b.second; });
    const bool isLocal = local != locals.end() && counts.contains(FoldAscii(local->second));
    owners.emplace(system, isLocal ? local->second : most->first);
  }
  return owners;
}

}  // namespace

Territories ReadTerritories(const SourceTables& tables, const SystemBook& systems) {
  Owners owners = OwnersOf(LocalFactions(tables, systems), PossessionsOf(tables, systems));
  std::map<std::string, std::size_t> counts;
  for (const SystemArea& system : systems.Systems()) {
    const auto owner = owners.find(system.Nickname);
    if (owner == owners.end()) continue;
    owner->second = FactionNameOf(tables, owner->second);
    ++counts[owner->second];
  }
  Territories territories;
  for (const auto& [faction, count] : counts) territories.Factions.push_back(faction);
  std::stable_sort(
      territories.Factions.begin(), territories.Factions.end(),
      [&](const std::string& a, const std::string& b) { return counts[a] > counts[b]; });
  for (SystemArea system : systems.Systems()) {
    if (const auto owner = owners.find(system.Nickname); owner != owners.end()) {
      const auto place =
          std::find(territories.Factions.begin(), territories.Factions.end(), owner->second);
      system.Faction = static_cast<std::size_t>(place - territories.Factions.begin());
    }
    territories.Systems.push_back(std::move(system));
  }
  return territories;
}

}  // namespace orrerix
