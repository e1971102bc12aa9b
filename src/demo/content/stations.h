// SPDX-License-Identifier: MIT
// The kinds of stations and planets in the demo game.
#pragma once

#include <string>
#include <vector>

#include "demo/content/commodities.h"
#include "demo/content/factions.h"

namespace orrerix::demo {

// A kind of station. The stem begins the names of its archetype and its loadouts, and map programs
// choose its picture by it.
struct StationKind {
  std::string Stem;
  std::string NamePattern;  // {} is a place name
  std::string Class;        // on the card
  FactionRole Owner = FactionRole::Company;
  int Crew = 0;  // typical head count
  std::vector<GoodsGroup> Makes;
  std::vector<GoodsGroup> Wants;
  std::vector<std::string>
      Openings;  // first sentence of the card; {name} and {system} are filled in
};

const std::vector<StationKind>& StationKinds();

// A kind of planet, with what its markets make and want.
struct PlanetKind {
  std::string Archetype;
  std::string Class;
  int Diameter = 0;  // typical, in km
  int CoolestDegrees = 0;
  int WarmestDegrees = 0;
  bool Settled = true;
  std::vector<GoodsGroup> Makes;
  std::vector<GoodsGroup> Wants;
  std::vector<std::string> Openings;
};

const std::vector<PlanetKind>& PlanetKinds();

}  // namespace orrerix::demo
