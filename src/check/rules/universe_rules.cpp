// SPDX-License-Identifier: MIT
#include "check/rules/universe_rules.h"

#include <cmath>
#include <map>
#include <set>

#include <fmt/format.h>

#include "check/model/numbers.h"

namespace orrerix::check {
namespace {

constexpr std::string_view kFirstSystem = "li01";
// Half the edge of a system's map at scale 1, and what the map makes of a place in space.
constexpr double kMapEdge = 100000;
constexpr double kMapFactor = 0.75;

class UniverseRules {
 public:
  UniverseRules(const CheckedGame& game, Findings& findings) : game_(game), findings_(findings) {}

  void Check() {
    for (const IniSection* object : game_.Known.All(Kind::Object)) CheckPlace(*object);
    CheckCells();
    if (!game_.Known.IsComplete(Kind::System) || !game_.Known.IsComplete(Kind::Object)) return;
    CheckBases();
    CheckWays();
  }

 private:
  const IniEntry* First(const IniSection& section, std::string_view key) const {
    return section.First(game_.Files.Names().Find(key));
  }

  double ScaleOf(const IniFile& file) {
    const auto [known, isNew] = scales_.try_emplace(&file, 1);
    const auto& systems = game_.Known.SystemsOf(file);
    if (!isNew || systems.empty()) return known->second;
    const IniEntry* scale = First(*systems.front(), "navmapscale");
    const double number = scale == nullptr ? 0 : ParseNumber(scale->At(1)).value_or(0);
    if (number > 0) known->second = number;
    return known->second;
  }

  void CheckPlace(const IniSection& object) {
    const IniEntry* pos = First(object, "pos");
    if (pos == nullptr) return;
    const double scale = ScaleOf(*object.File);
    for (const std::size_t axis : {1, 3}) {
      const auto number = ParseNumber(pos->At(axis));
      if (!number || !(kMapFactor * scale * std::abs(*number) > kMapEdge)) continue;
      findings_.Add(Rule::ObjectOutsideMap, AtEntry(object, *pos),
                    fmt::format("the object lies outside the map: {}", pos->Value));
      return;
    }
  }

  void CheckCells() {
    std::map<std::pair<double, double>, const IniSection*> taken;
    for (const IniSection* system : game_.Known.All(Kind::System)) {
      const IniEntry* pos = First(*system, "pos");
      if (pos == nullptr) continue;
      const auto x = ParseNumber(pos->At(1));
      const auto y = ParseNumber(pos->At(2));
      if (!x || !y) continue;
      const auto [first, isNew] =
          taken.emplace(std::pair(std::round(*x) + 0.0, std::round(*y) + 0.0), system);
      if (isNew) continue;
      findings_.Add(Rule::MapCellShared, AtEntry(*system, *pos),
                    fmt::format("{} stands in this cell of the map, too: {}",
                                first->second->Nickname(), pos->Value),
                    {PlaceOf(AtEntryOrHeader(*first->second, First(*first->second, "pos")))});
    }
  }

  void CheckBases() {
    std::set<std::string> named;
    const NameId base = game_.Files.Names().Find("base");
    const NameId dockWith = game_.Files.Names().Find("dock_with");
    for (const IniSection* object : game_.Known.All(Kind::Object)) {
      for (const IniEntry& entry : object->Entries) {
        if (entry.Name == base || entry.Name == dockWith) named.insert(FoldName(entry.At(1)));
      }
    }
    for (const IniSection* each : game_.Known.All(Kind::Base)) {
      if (each->Nickname().empty() || named.contains(FoldName(each->Nickname()))) continue;
      findings_.Add(Rule::BaseNoObject, AtLead(*each),
                    fmt::format("no object belongs to the base: {}", each->Nickname()));
    }
  }

  // The systems that each system's jumps lead to, by nickname in lower case.
  std::map<std::string, std::set<std::string>> ReadJumps() const {
    std::map<std::string, std::set<std::string>> jumps;
    for (const IniSection* object : game_.Known.All(Kind::Object)) {
      const IniEntry* jump = First(*object, "goto");
      if (jump == nullptr) continue;
      for (const IniSection* system : game_.Known.SystemsOf(*object->File)) {
        jumps[FoldName(system->Nickname())].insert(FoldName(jump->At(1)));
      }
    }
    return jumps;
  }

  std::set<std::string> Reachable(const std::string& start) const {
    const auto jumps = ReadJumps();
    std::set<std::string> reached = {start};
    std::vector<std::string> open = {start};
    while (!open.empty()) {
      const auto found = jumps.find(open.back());
      open.pop_back();
      if (found == jumps.end()) continue;
      for (const std::string& next : found->second) {
        if (reached.insert(next).second) open.push_back(next);
      }
    }
    return reached;
  }

  void CheckWays() {
    const auto& systems = game_.Known.All(Kind::System);
    if (systems.empty()) return;
    const bool hasFirst = game_.Known.Find(Kind::System, kFirstSystem) != nullptr;
    const auto reached =
        Reachable(hasFirst ? std::string(kFirstSystem) : FoldName(systems.front()->Nickname()));
    for (const IniSection* system : systems) {
      if (system->Nickname().empty() || reached.contains(FoldName(system->Nickname()))) continue;
      findings_.Add(Rule::SystemUnreachable, AtLead(*system),
                    fmt::format("no jumps lead to the system: {}", system->Nickname()));
    }
  }

  const CheckedGame& game_;
  Findings& findings_;
  std::map<const IniFile*, double> scales_;
};

}  // namespace

void CheckUniverse(const CheckedGame& game, Findings& findings) {
  UniverseRules(game, findings).Check();
}

}  // namespace orrerix::check
