// SPDX-License-Identifier: MIT
#include "space/summary.h"

#include <algorithm>
#include <set>
#include <utility>

#include "db/values/text.h"

namespace orrerix {
namespace {

template <typename Thing, typename IsWanted>
std::size_t CountIn(const std::vector<Thing>& things, const CellArea& area, IsWanted isWanted) {
  return static_cast<std::size_t>(
      std::count_if(things.begin(), things.end(),
                    [&](const Thing& thing) { return area.Holds(thing.Cell) && isWanted(thing); }));
}

constexpr auto kAll = [](const auto&) { return true; };

class Writer {
 public:
  Writer(const Space& space, const CellArea& area) : space_(space), area_(area) {
    for (const SystemArea& system : space.Systems) {
      if (area.Holds(system.Cell)) systems_.push_back(&system);
    }
  }

  std::vector<SummaryLine> Write(std::size_t mostNames) {
    if (systems_.empty()) return {};
    if (systems_.size() == 1) {
      WriteSystem(*systems_.front(), mostNames);
    } else {
      WriteCounts();
    }
    return std::move(lines_);
  }

 private:
  void AddCount(SummaryKind kind, std::size_t count) {
    if (count > 0) lines_.push_back({kind, count, "", ""});
  }

  // The names of a kind in their order.
  void AddNames(std::vector<SummaryLine> names, std::size_t most) {
    std::stable_sort(names.begin(), names.end(), [](const auto& left, const auto& right) {
      return FoldAscii(left.Name) < FoldAscii(right.Name);
    });
    for (std::size_t i = 0; i < std::min(most, names.size()); ++i) lines_.push_back(names[i]);
    if (names.size() > most) {
      lines_.push_back({SummaryKind::More, names.size() - most, "", ""});
    }
  }

  std::size_t Spots(SpotKind kind) const {
    return CountIn(space_.Spots, area_, [&](const Spot& spot) { return spot.Kind == kind; });
  }
  std::size_t Gates(bool holes) const {
    return CountIn(space_.Gates, area_, [&](const Gate& gate) { return gate.IsHole == holes; });
  }

  void WriteCounts() {
    std::set<std::size_t> owners;
    for (const SystemArea* system : systems_) {
      if (system->Faction) owners.insert(*system->Faction);
    }
    AddCount(SummaryKind::Systems, systems_.size());
    AddCount(SummaryKind::Owners, owners.size());
    AddCount(SummaryKind::Bases, Spots(SpotKind::Station));
    AddCount(SummaryKind::Gates, Gates(false));
    AddCount(SummaryKind::Holes, Gates(true));
    WriteSights();
  }

  void WriteSights() {
    AddCount(SummaryKind::Bodies, CountIn(space_.Bodies, area_, kAll));
    AddCount(SummaryKind::Zones, CountIn(space_.Zones, area_, kAll));
    AddCount(SummaryKind::Wrecks, Spots(SpotKind::Wreck));
  }

  void WriteSystem(const SystemArea& system, std::size_t mostNames) {
    lines_.push_back({SummaryKind::System, 0, system.Name, system.Nickname, system.Cell});
    const std::string owner = system.Faction ? space_.Factions[*system.Faction] : std::string();
    lines_.push_back({SummaryKind::Owner, 0, owner, ""});
    std::vector<SummaryLine> bases;
    for (const Spot& spot : space_.Spots) {
      if (spot.Kind != SpotKind::Station || !area_.Holds(spot.Cell)) continue;
      bases.push_back({SummaryKind::Base, 0, spot.Name, spot.Nickname});
    }
    lines_.push_back({SummaryKind::Bases, bases.size(), "", ""});
    AddNames(std::move(bases), mostNames);
    WriteGates(false, mostNames);
    WriteGates(true, mostNames);
    WriteSights();
  }

  void WriteGates(bool holes, std::size_t mostNames) {
    std::vector<SummaryLine> gates;
    for (const Gate& gate : space_.Gates) {
      if (gate.IsHole != holes || !area_.Holds(gate.Cell)) continue;
      gates.push_back({SummaryKind::Gate, 0, SystemIn(gate.OtherCell), "", gate.OtherCell});
    }
    AddCount(holes ? SummaryKind::Holes : SummaryKind::Gates, gates.size());
    AddNames(std::move(gates), mostNames);
  }

  std::string SystemIn(MapCell cell) const {
    const auto found = std::find_if(space_.Systems.begin(), space_.Systems.end(),
                                    [&](const SystemArea& system) { return system.Cell == cell; });
    return found == space_.Systems.end() ? std::string() : found->Name;
  }

  const Space& space_;
  CellArea area_;
  std::vector<const SystemArea*> systems_;
  std::vector<SummaryLine> lines_;
};

}  // namespace

std::vector<SummaryLine> SummaryOf(const Space& space, const CellArea& area,
                                   std::size_t mostNames) {
  return Writer(space, area).Write(mostNames);
}

}  // namespace orrerix
