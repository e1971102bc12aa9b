// SPDX-License-Identifier: MIT
// The demo game as a plan: what is where, before any file is written.
#pragma once

#include <string>
#include <vector>

#include "demo/content/stations.h"
#include "demo/plan/map_cells.h"
#include "demo/plan/plane.h"

namespace orrerix::demo {

// A place to land: a settled planet (Planet is set) or a station (Station is set).
struct PlannedBase {
  std::string Nickname;  // of the object; the base is called the same with "_base" after
  std::string Name;
  const PlanetKind* Planet = nullptr;
  const StationKind* Station = nullptr;
  int Owner = 0;  // index into Factions
  PlanePoint Place;

  std::string BaseNickname() const { return Nickname + "_base"; }
};

// A planet or moon that nobody lives on.
struct BarePlanet {
  std::string Nickname;
  std::string Name;
  const PlanetKind* Kind = nullptr;
  PlanePoint Place;
};

struct JumpPoint {
  std::string Nickname;
  int Target = 0;  // index of the system at the other end
  std::string TargetNickname;
  bool Hole = false;
  PlanePoint Place;
};

// A chain of rings that are numbered through the system.
struct TradeLane {
  std::string FromName;
  std::string ToName;
  PlanePoint From;
  PlanePoint To;
  int FirstRing = 1;
  int Rings = 0;
  int MissingRing = 0;  // a ring that is left out, counted from 1: a planted fault; 0 for none
};

struct Wreck {
  std::string Nickname;
  std::string Name;
  PlanePoint Place;

  std::string Loadout() const { return "SECRET_" + Nickname; }
};

enum class FieldKind { Ice, Rock, Debris };

struct AsteroidField {
  std::string Nickname;
  std::string Name;
  FieldKind Kind = FieldKind::Rock;
  PlanePoint Place;
  int Size = 0;
};

struct PlannedSystem {
  std::string Nickname;
  std::string Name;
  int Nation = 0;  // index into Nations
  Cell Place;
  double Scale = 1;  // larger ones draw the same distances larger
  std::vector<PlannedBase> Bases;
  std::vector<BarePlanet> BarePlanets;
  std::vector<JumpPoint> Jumps;
  std::vector<TradeLane> Lanes;
  std::vector<Wreck> Wrecks;
  std::vector<AsteroidField> Fields;

  // Distance of the rim from the middle, so that the rim is drawn just inside the system's cell.
  double Rim() const { return 95000 / Scale; }
};

// Everything that is where it is. The texts about it are composed by the writers.
struct UniversePlan {
  std::vector<PlannedSystem> Systems;
  int StrayHoleSystem = -1;  // has a hole whose target has no position: a planted fault
};

inline constexpr int FewestSystems = 2;
inline constexpr int MostSystems = 2000;

// Plans a universe of so many systems; the same count gives the same plan.
UniversePlan PlanUniverse(int systemCount);

}  // namespace orrerix::demo
