// SPDX-License-Identifier: MIT
// What the archetypes of objects in space are.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/game_path.h"

namespace orrerix {

class SolarBook {
 public:
  // Without the game's file names alone tell what an archetype is.
  SolarBook() = default;

  // Reads DATA\SOLAR\solararch.ini.
  explicit SolarBook(const GameFolder& game);

  bool IsSun(std::string_view archetype) const;
  bool IsPlanet(std::string_view archetype) const;
  bool IsWeaponPlatform(std::string_view archetype) const;

  // In game units: `solar_radius`, else the number that the archetype's name ends with
  // ("planet_desert_600"), else 0.
  double RadiusOf(std::string_view archetype) const;

 private:
  struct Solar {
    std::string Type;
    double Radius = 0;
  };
  bool Is(std::string_view archetype, std::string_view type, std::string_view start) const;

  std::unordered_map<std::string, Solar> solars_;
};

}  // namespace orrerix
