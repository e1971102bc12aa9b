// SPDX-License-Identifier: MIT
#include "space/describe.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

constexpr MapCell kCell{3, 4};
constexpr CellFraction kMiddle{0.5, 0.5};

Zone ZoneOf(ZoneKinds kinds) {
  Zone zone;
  zone.Kinds = kinds;
  zone.Cell = kCell;
  zone.Outlines = {{{0.4, 0.4}, {0.6, 0.4}, {0.6, 0.6}, {0.4, 0.6}}};
  return zone;
}

std::string TextOf(const Space& space, std::initializer_list<Layer> layers,
                   Language language = Language::English) {
  LayerChoice choice = LayerChoice::None();
  for (const Layer layer : layers) choice.Set(layer, true);
  return DescribePoint(space, choice, language, kCell, kMiddle, 0.01);
}

TEST(Describe, NamesZonesWithWhatCountsInThem) {
  Space space;
  space.Zones = {ZoneOf({ZoneKind::Asteroids, ZoneKind::Mining}), ZoneOf({ZoneKind::Danger})};
  space.Zones[0].Name = "Pittsburgh Debris Field";
  space.Zones[0].Yields = {"Gold", "Ore"};
  space.Zones[1].Damage = 200;
  space.Zones[1].HasMines = true;

  EXPECT_EQ(TextOf(space, {Layer::Mining, Layer::Danger}),
            "Danger: 200 damage per second; mines\n"
            "Pittsburgh Debris Field (Mining): to be mined: Gold, Ore\n"
            "D4");
  EXPECT_EQ(TextOf(space, {Layer::Danger}, Language::German),
            "Gefahr: 200 Schaden pro Sekunde; Minen\nD4");
}

TEST(Describe, NamesGatesWithTheirOwner) {
  Space space;
  space.Gates = {{"gate", "To Texas", false, "The Police", kCell, kMiddle, {5, 6}}};

  EXPECT_EQ(TextOf(space, {Layer::Gates}), "To Texas, owner: The Police\nD4");
  EXPECT_EQ(TextOf(space, {Layer::Bodies}), "");
}

TEST(Describe, ListsTheLootOfAWreck) {
  Space space;
  space.Spots = {{"w", "Freighter", SpotKind::Wreck, "", {"5 x Gold"}, kCell, kMiddle}};

  EXPECT_EQ(TextOf(space, {Layer::Wrecks}), "Freighter\n  5 x Gold\nD4");
}

TEST(Describe, SaysNothingWhereNothingIs) {
  EXPECT_EQ(TextOf({}, {Layer::Danger, Layer::Bodies}), "");
}

}  // namespace
}  // namespace orrerix
