// SPDX-License-Identifier: MIT
#include "space/layers.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(Layers, OfANewPlayerAreTheBodiesAlone) {
  EXPECT_EQ(LayerChoice().Text(), "bodies");
}

TEST(Layers, AreRememberedByName) {
  LayerChoice choice = LayerChoice::None();
  choice.Set(Layer::Danger, true);
  choice.Set(Layer::Sectors, true);

  EXPECT_EQ(choice.Text(), "danger sectors");
  EXPECT_EQ(LayerChoice::FromText("sectors  rubbish danger"), choice);
  EXPECT_TRUE(LayerChoice::FromText("").Empty());
}

TEST(Layers, ShowAZoneAsItsMostDangerousKind) {
  Zone zone;
  zone.Kinds = {ZoneKind::Nebula, ZoneKind::Danger};

  EXPECT_EQ(ShownKind(zone, {ZoneKind::Nebula, ZoneKind::Danger}), ZoneKind::Danger);
  EXPECT_EQ(ShownKind(zone, {ZoneKind::Nebula}), ZoneKind::Nebula);
  EXPECT_EQ(ShownKind(zone, {ZoneKind::Patrol}), std::nullopt);
}

TEST(Layers, OfZonesAreTheirKinds) {
  LayerChoice choice;
  choice.Set(Layer::TradePaths, true);

  EXPECT_EQ(choice.Zones(), ZoneKinds{ZoneKind::Trade});
}

}  // namespace
}  // namespace orrerix
