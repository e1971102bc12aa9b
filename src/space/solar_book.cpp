// SPDX-License-Identifier: MIT
#include "space/solar_book.h"

#include <algorithm>

#include "atlas/figures.h"
#include "db/values/text.h"
#include "space/game_sections.h"

namespace orrerix {

SolarBook::SolarBook(const GameFolder& game) {
  for (const GameSection& section : ReadGameSections(game, "solar\\solararch.ini")) {
    if (section.Name != "solar") continue;
    solars_.try_emplace(FoldAscii(section.Value("nickname")),
                        Solar{FoldAscii(section.Value("type")),
                              ParseFigure(section.Value("solar_radius")).value_or(0)});
  }
}

bool SolarBook::Is(std::string_view archetype, std::string_view type,
                   std::string_view start) const {
  const std::string name = FoldAscii(archetype);
  const auto solar = solars_.find(name);
  if (solar != solars_.end() && !solar->second.Type.empty()) return solar->second.Type == type;
  return name.starts_with(start);
}

bool SolarBook::IsSun(std::string_view archetype) const {
  return Is(archetype, "sun", "sun_");
}

bool SolarBook::IsPlanet(std::string_view archetype) const {
  return Is(archetype, "planet", "planet_");
}

bool SolarBook::IsWeaponPlatform(std::string_view archetype) const {
  const std::string name = FoldAscii(archetype);
  const auto solar = solars_.find(name);
  if (solar != solars_.end() && solar->second.Type == "weapons_platform") return true;
  return name.find("platform") != std::string::npos;
}

double SolarBook::RadiusOf(std::string_view archetype) const {
  const std::string name = FoldAscii(archetype);
  const auto solar = solars_.find(name);
  if (solar != solars_.end() && solar->second.Radius > 0) return solar->second.Radius;
  const std::size_t before = name.find_last_not_of("0123456789");
  if (before == std::string::npos || name[before] != '_') return 0;
  return ParseFigure(std::string_view(name).substr(before + 1)).value_or(0);
}

}  // namespace orrerix
