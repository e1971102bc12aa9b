// SPDX-License-Identifier: MIT
// The ships of the demo game.
#pragma once

#include <string>
#include <vector>

namespace orrerix::demo {

enum class ShipRole { LightFighter, HeavyFighter, Freighter };

struct Ship {
  std::string Nickname;
  std::string Name;
  int Nation = 0;  // index into Nations
  ShipRole Role = ShipRole::LightFighter;
  int HullPrice = 0;
  int HitPoints = 0;
  int Hold = 0;
  double Mass = 0;
  double Steering = 0;
  int Guns = 2;
  int Batteries = 0;  // limit of shield batteries and of nanobots
  std::string About;
  bool HasHull = true;     // a ship without one can't be bought: a fault that the data log names
  bool HasPackage = true;  // likewise
};

const std::vector<Ship>& Ships();

}  // namespace orrerix::demo
