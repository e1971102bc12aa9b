// SPDX-License-Identifier: MIT
#include "map/layers/object_classes.h"

#include <array>

#include "db/values/text.h"

namespace orrerix {
namespace {

struct ObjectClass {
  std::string_view LoadoutText;
  std::string_view Picture;
};

constexpr std::array<ObjectClass, 18> kClasses = {{
    {"dreadnought", "Battleship"},
    {"battleship", "Battleship"},
    {"ge_liner", "Battleship"},
    {"smallstation", "Battleship"},
    {"factory", "Borderstation"},
    {"space_police", "Borderstation"},
    {"space_mining", "Borderstation"},
    {"space_port", "Borderstation"},
    {"depot", "Borderstation"},
    {"prison_li", "Borderstation"},
    {"space_shipping", "Borderstation"},
    {"space_station", "WaterlooStation"},
    {"trading_outpost", "Outpost"},
    {"gasminer", "Gasminer"},
    {"mining_co", "Gasminer"},
    {"miningbase", "NormalStation"},
    {"SECRET_", "NavyFighter"},
    {"docking_ring", "Planet1"},
}};

}  // namespace

std::string_view ObjectPicture(std::string_view loadout) {
  std::string_view picture = "Unbekannt";
  for (const ObjectClass& objectClass : kClasses) {
    if (Contains(loadout, objectClass.LoadoutText)) picture = objectClass.Picture;
  }
  return picture;
}

}  // namespace orrerix
