// SPDX-License-Identifier: MIT
#include "forms/layers/layers_fixture.h"
#include "support/freed_memory_probe.h"

namespace orrerix {
namespace {

using MapSpaceTest = LayersFixture;

LayerChoice Only(Layer layer) {
  LayerChoice choice = LayerChoice::None();
  choice.Set(layer, true);
  return choice;
}

// The sun's radius is a tenth of the system's square: 57 pixels around its middle at 285, 285.
TEST_F(MapSpaceTest, BodiesAreDrawnInTheirSizeUnlessTheyAreOff) {
  MapSpace space(map, remembered, choice);
  Read(space);
  ShowSystem(space);

  EXPECT_GT(Picture().pixelColor(285 + 40, 285).red(), 200);
  space.Choose(LayerChoice::None());
  EXPECT_LT(Picture().pixelColor(285 + 40, 285).red(), 150);
}

#ifdef ORRERIX_HAS_FREED_MEMORY_PROBE
TEST_F(MapSpaceTest, WhatReadingTookAfterAnImportGoesBackToTheSystem) {
  MapSpace space(map, remembered, choice);
  const FreedMemoryProbe before;  // goes when the map has read its pictures
  ASSERT_TRUE(WaitUntil([&] { return before.HasGoneBack(); }));
  const FreedMemoryProbe probe;

  Read(space);

  EXPECT_TRUE(probe.HasGoneBack());
}
#endif

TEST_F(MapSpaceTest, ARedrawThatChangesNothingInThemLeavesThemAsTheyAre) {
  MapSpace space(map, remembered, choice);
  Read(space);
  ShowSystem(space);
  ASSERT_GT(Picture().pixelColor(285 + 40, 285).red(), 200);
  ASSERT_TRUE(WaitUntil([&] { return !pictures.IsWanting(); }));
  const std::uint64_t version = map.Scene().StillVersion();

  space.MapRedrawn();
  EXPECT_EQ(map.Scene().StillVersion(), version);
  space.Choose(LayerChoice::None());
  EXPECT_NE(map.Scene().StillVersion(), version);
}

TEST_F(MapSpaceTest, TheChoiceIsRemembered) {
  { MapSpace(map, remembered, choice).Choose(Only(Layer::Danger)); }

  EXPECT_EQ(MapSpace(map, remembered, choice).Choice(), Only(Layer::Danger));
}

TEST_F(MapSpaceTest, NothingChosenIsRememberedToo) {
  { MapSpace(map, remembered, choice).Choose(LayerChoice::None()); }

  EXPECT_TRUE(MapSpace(map, remembered, choice).Choice().Empty());
}

TEST_F(MapSpaceTest, TheDrawingOfTheMapStaysAsItIs) {
  Zoom({8, 10, 8, 10});
  const ControlList before = map.Drawing().Controls;
  MapSpace space(map, remembered, choice);
  Read(space);
  space.MapRedrawn();

  EXPECT_EQ(map.Drawing().Controls, before);
  const Control* under = map.Scene().ControlAt({285, 285});
  EXPECT_TRUE(under == nullptr || under->Id != ControlId::MapFrame);
}

TEST_F(MapSpaceTest, APointerThatRestsIsToldWhatIsThere) {
  MapSpace space(map, remembered, choice);
  Read(space);
  ShowSystem(space);

  EXPECT_EQ(space.TextAt({285, 285}), "Sol\nD4");
  EXPECT_EQ(space.TextAt({10, 285}), "");
  EXPECT_EQ(space.TextAt({-10, 285}), "");
}

TEST_F(MapSpaceTest, GatesLeadOnWhereTheirLayerIsOn) {
  MapSpace space(map, remembered, choice);
  Read(space);
  ShowSystem(space);
  const QPointF gate(570 * 0.25, 570 * 0.25);

  EXPECT_EQ(space.GateAt(gate), nullptr);
  space.Choose(Only(Layer::Gates));
  ASSERT_NE(space.GateAt(gate), nullptr);
  EXPECT_EQ(space.GateAt(gate)->OtherCell, (MapCell{3, 4}));
  EXPECT_EQ(space.GateAt({300, 300}), nullptr);
}

// The icon is enlarged while the mouse is on it.
TEST_F(MapSpaceTest, AClickOnAGatesIconNamesItsPlace) {
  AddGate([this](std::string_view table, Fields fields) { Add(table, fields); });
  MapSpace space(map, remembered, choice);
  Read(space);
  ShowSystem(space);
  space.Choose(Only(Layer::Gates));
  const Gate* gate = nullptr;
  play.OnJumpEnd = [&](const Control& icon) { gate = space.GateAt(Pixels(icon.Place).center()); };
  const QPoint at(570 / 4, 570 / 4);

  Move(at);
  Click(at);

  ASSERT_NE(gate, nullptr);
  EXPECT_EQ(gate->OtherCell, (MapCell{3, 4}));
  EXPECT_TRUE(stations.empty());
}

TEST_F(MapSpaceTest, NamesOfSystemsTakeThePlaceOfTheMapsOwn) {
  MapSpace space(map, remembered, choice);
  Read(space);
  const auto isSeen = [this] {
    for (const QGraphicsItem* item : map.Scene().items()) {
      if (ControlItem::Of(*item).Id == ControlId::SystemLabel) return item->opacity() > 0;
    }
    return false;
  };

  EXPECT_TRUE(isSeen());
  space.Choose(Only(Layer::SystemNames));
  EXPECT_FALSE(isSeen());
  space.Choose(LayerChoice::None());
  EXPECT_TRUE(isSeen());
}

TEST_F(MapSpaceTest, AFileThatCannotBeReadShowsNothing) {
  folder.Write("broken.fl", "no database");
  MapSpace space(map, remembered, choice);
  bool done = false;
  space.OnRead = [&] { done = true; };

  space.Read(folder.Path() / "broken.fl", "");

  ASSERT_TRUE(WaitUntil([&] { return done; }));
  EXPECT_EQ(space.Shown(), nullptr);
}

}  // namespace
}  // namespace orrerix
