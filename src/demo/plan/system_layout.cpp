// SPDX-License-Identifier: MIT
#include "demo/plan/system_layout.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include <fmt/core.h>

#include "demo/content/factions.h"
#include "demo/content/sentences.h"

namespace orrerix::demo {
namespace {

constexpr double kRoomBetweenPlaces = 9000;
constexpr double kSunClearance = 14000;

// Lays out one system; holds what all steps of it share.
class Layout {
 public:
  Layout(PlannedSystem& system, Names& names, int stationsBefore)
      : system_(system),
        names_(names),
        stationCount_(stationsBefore),
        random_(SeedOf("layout of " + system.Nickname)),
        nation_(Nations()[static_cast<std::size_t>(system.Nation)]) {
    for (const JumpPoint& jump : system.Jumps) taken_.push_back(jump.Place);
  }

  int Run() {
    PlacePlanets();
    PlaceStations();
    PlaceBarePlanets();
    PlaceWrecks();
    PlaceFields();
    return stationCount_;
  }

 private:
  bool IsBorder() const { return system_.Nation == kBorderWorlds; }

  // A free point between two shares of the rim's radius; the last one tried if all is crowded.
  PlanePoint FreePoint(double inner, double outer) {
    constexpr int patience = 60;
    PlanePoint point;
    for (int attempt = 0; attempt < patience; ++attempt) {
      point = OnCircle(random_.Share(), random_.Between(inner, outer) * system_.Rim());
      const bool crowded = std::any_of(taken_.begin(), taken_.end(), [&](PlanePoint other) {
        return Distance(point, other) < kRoomBetweenPlaces;
      });
      if (!crowded) break;
    }
    taken_.push_back(point);
    return point;
  }

  std::string NextNickname() const {
    return fmt::format("{}_{:02}", system_.Nickname, system_.Bases.size() + 1);
  }

  int OwnerFor(FactionRole role) { return random_.Pick(FactionsOf(system_.Nation, role)); }

  const PlanetKind& PickPlanetKind(bool settled) {
    std::vector<const PlanetKind*> kinds;
    for (const PlanetKind& kind : PlanetKinds()) {
      if (kind.Settled == settled) kinds.push_back(&kind);
    }
    return *random_.Pick(kinds);
  }

  void PlacePlanets() {
    const int count = IsBorder() ? random_.Between(1, 2) : random_.Between(1, 3);
    for (int i = 0; i < count; ++i) {
      PlannedBase planet;
      planet.Nickname = NextNickname();
      planet.Name = names_.Place(nation_, random_);
      planet.Planet = &PickPlanetKind(true);
      planet.Owner = OwnerFor(FactionRole::Police);
      planet.Place = FreePoint(0.24 + 0.13 * i, 0.36 + 0.13 * i);
      system_.Bases.push_back(std::move(planet));
    }
  }

  void PlaceStations() {
    const int last = static_cast<int>(StationKinds().size()) - 1;  // the pirates' kind
    const int count = IsBorder() ? random_.Between(1, 3) : random_.Between(2, 4);
    for (int i = 0; i < count; ++i) PlaceStation(stationCount_++ % last);
    if (random_.Chance(IsBorder() ? 60 : 35)) PlaceStation(last);
  }

  void PlaceStation(int kind) {
    PlannedBase station;
    station.Nickname = NextNickname();
    station.Station = &StationKinds()[static_cast<std::size_t>(kind)];
    station.Name =
        fmt::format(fmt::runtime(station.Station->NamePattern), names_.Place(nation_, random_));
    station.Owner = OwnerFor(station.Station->Owner);
    const bool hidden = station.Station->Owner == FactionRole::Pirate;
    const bool guards = station.Station->Owner == FactionRole::Navy;
    if (guards && random_.Chance(60)) {
      const PlanePoint planet = system_.Bases[0].Place;
      const PlanePoint offset = OnCircle(random_.Share(), random_.Between(5000.0, 7000.0));
      station.Place = {planet.X + offset.X, planet.Y + offset.Y};
    } else {
      station.Place = hidden ? FreePoint(0.75, 0.95) : FreePoint(0.3, 0.85);
    }
    system_.Bases.push_back(std::move(station));
  }

  void PlaceBarePlanets() {
    const int count = random_.Between(0, 2);
    for (int i = 0; i < count; ++i) {
      BarePlanet planet;
      planet.Nickname = fmt::format("{}_planet_{}", system_.Nickname, i + 1);
      planet.Name = names_.Place(nation_, random_);
      planet.Kind = &PickPlanetKind(false);
      planet.Place = FreePoint(0.5, 0.9);
      system_.BarePlanets.push_back(std::move(planet));
    }
  }

  void PlaceWrecks() {
    const int count = random_.Chance(IsBorder() ? 85 : 55) ? random_.Between(1, 2) : 0;
    for (int i = 0; i < count; ++i) {
      Wreck wreck;
      wreck.Nickname = fmt::format("{}_wreck_{}", system_.Nickname, i + 1);
      wreck.Name = random_.Pick(WreckNames());
      wreck.Place = FreePoint(0.55, 0.98);
      system_.Wrecks.push_back(std::move(wreck));
    }
  }

  void PlaceFields() {
    const int count = random_.Between(1, 2);
    for (int i = 0; i < count; ++i) {
      AsteroidField field;
      field.Kind = static_cast<FieldKind>(random_.Between(0, 2));
      field.Nickname = fmt::format("zone_{}_field_{}", system_.Nickname, i + 1);
      field.Name = fmt::format("{} {}", names_.Place(nation_, random_), random_.Pick(FieldNames()));
      field.Place = OnCircle(random_.Share(), random_.Between(0.5, 0.85) * system_.Rim());
      field.Size = random_.Between(12, 30) * 1000;
      system_.Fields.push_back(std::move(field));
    }
  }

  PlannedSystem& system_;
  Names& names_;
  int stationCount_;
  Random random_;
  const Nation& nation_;
  std::vector<PlanePoint> taken_;
};

constexpr double kLaneStart = 4000;  // distance from what the lane leads to
constexpr double kShortestLane = 15000;
constexpr double kRingSpacing = 8000;

bool AddLane(PlannedSystem& system, PlanePoint from, PlanePoint to, const std::string& fromName,
             const std::string& toName) {
  const double length = Distance(from, to) - 2 * kLaneStart;
  if (length < kShortestLane || DistanceFromMiddle(from, to) < kSunClearance) return false;
  const double share = kLaneStart / Distance(from, to);
  TradeLane lane;
  lane.FromName = fromName;
  lane.ToName = toName;
  lane.From = Along(from, to, share);
  lane.To = Along(from, to, 1 - share);
  lane.Rings = std::clamp(static_cast<int>(length / kRingSpacing) + 1, 4, 12);
  if (!system.Lanes.empty()) {
    lane.FirstRing = system.Lanes.back().FirstRing + system.Lanes.back().Rings;
  }
  system.Lanes.push_back(std::move(lane));
  return true;
}

// Places that lanes lead to, nearest first. Those of pirates have none.
std::vector<const PlannedBase*> BasesByDistance(const PlannedSystem& system, PlanePoint from) {
  std::vector<const PlannedBase*> bases;
  for (const PlannedBase& base : system.Bases) {
    const bool hidden = base.Station != nullptr && base.Station->Owner == FactionRole::Pirate;
    if (!hidden) bases.push_back(&base);
  }
  std::stable_sort(bases.begin(), bases.end(), [from](const PlannedBase* a, const PlannedBase* b) {
    return Distance(from, a->Place) < Distance(from, b->Place);
  });
  return bases;
}

}  // namespace

int LayOutSystem(PlannedSystem& system, Names& names, int stationsBefore) {
  return Layout(system, names, stationsBefore).Run();
}

void LayLanes(PlannedSystem& system, const std::vector<std::string>& targetNames) {
  for (std::size_t i = 0; i < system.Jumps.size(); ++i) {
    const JumpPoint& jump = system.Jumps[i];
    if (jump.Hole) continue;
    for (const PlannedBase* base : BasesByDistance(system, jump.Place)) {
      const std::string gate = fmt::format("Gate to {}", targetNames[i]);
      if (AddLane(system, jump.Place, base->Place, gate, base->Name)) break;
    }
  }
  for (std::size_t i = 1; i < system.Bases.size() && system.Bases[i].Planet != nullptr; ++i) {
    const PlannedBase& from = system.Bases[i - 1];
    AddLane(system, from.Place, system.Bases[i].Place, from.Name, system.Bases[i].Name);
  }
}

}  // namespace orrerix::demo
