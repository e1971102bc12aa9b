// SPDX-License-Identifier: MIT
#include "map/layers/object_classes.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(ObjectClasses, EachClassIsToldByATextInTheLoadout) {
  const std::pair<const char*, const char*> cases[] = {
      {"li_dreadnought_01", "Battleship"}, {"rh_battleship", "Battleship"},
      {"ge_liner_2", "Battleship"},        {"smallstation1", "Battleship"},
      {"space_factory", "Borderstation"},  {"space_police01", "Borderstation"},
      {"space_mining", "Borderstation"},   {"space_port_dmg", "Borderstation"},
      {"depot", "Borderstation"},          {"prison_li", "Borderstation"},
      {"space_shipping", "Borderstation"}, {"space_station_x", "WaterlooStation"},
      {"trading_outpost", "Outpost"},      {"gasminer_small", "Gasminer"},
      {"mining_co", "Gasminer"},           {"miningbase_fringe", "NormalStation"},
      {"SECRET_wreck", "NavyFighter"},     {"docking_ring_li", "Planet1"}};
  for (const auto& [loadout, picture] : cases) EXPECT_EQ(ObjectPicture(loadout), picture);
}

TEST(ObjectClasses, ALaterTextOfTheTableWins) {
  EXPECT_EQ(ObjectPicture("docking_ring_at_space_station"), "Planet1");
  EXPECT_EQ(ObjectPicture("space_station_factory"), "WaterlooStation");
}

TEST(ObjectClasses, TheCaseOfTheTextCounts) {
  EXPECT_EQ(ObjectPicture("Docking_Ring"), "Unbekannt");
  EXPECT_EQ(ObjectPicture("secret_wreck"), "Unbekannt");
}

TEST(ObjectClasses, AnEmptyLoadoutIsUnknown) {
  EXPECT_EQ(ObjectPicture(""), "Unbekannt");
}

}  // namespace
}  // namespace orrerix
