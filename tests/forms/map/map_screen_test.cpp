// SPDX-License-Identifier: MIT
#include "forms/map/map_screen.h"

#include "db/schema.h"
#include "forms/form_fixture.h"
#include "support/freed_memory_probe.h"
#include "support/universe_fixture.h"

namespace orrerix {
namespace {

class MapScreenTest : public UniverseFixture {
 protected:
  MapScreenTest() {
    Add("Systems", {{"nickname", "Li01"}, {"realname", "New York"}, {"pos", "8, 10"}});
    form.resize(800, 600);
    form.show();
    map.ReadCaptions();
    map.InitDataUsage(universe);
  }

  bool Shows(ControlId id) const {
    for (const Control& shown : map.Drawing().Controls) {
      if (shown.Id == id) return true;
    }
    return false;
  }

  TempFolder folder;
  PictureStore pictures;
  QWidget form;
  Settings settings{log, folder.Path(), JetVersionOption::Version30};
  FixedLanguage texts{Language::English};
  MapScreen map{pictures, settings, texts, &form};
};

TEST_F(MapScreenTest, TheFrameStandsWhereTheFormLeavesRoomForIt) {
  map.Redraw(universe, 12000, 9000);

  // 12000 - 200 by 9000 - 550 twips at 50, 50, without the pixels that are reached in part only
  const QRect frame = Find(form, ControlId::MapFrame).geometry();
  EXPECT_TRUE(map.Frame().isVisible());
  EXPECT_EQ(frame.topLeft(), QPoint(3, 3));
  EXPECT_EQ(frame.size(), QSize(786, 563));
}

TEST_F(MapScreenTest, TheSwitchesOfTheWholeGridComeFromTheFirstSet) {
  settings.ReadSetting("LANG");
  settings.WriteSettingValue("SET1-5", "0");
  map.Redraw(universe, 12000, 9000);
  EXPECT_FALSE(Shows(ControlId::SystemLabel));

  settings.WriteSettingValue("SET1-5", "1");
  map.Redraw(universe, 12000, 9000);
  EXPECT_TRUE(Shows(ControlId::SystemLabel));
}

TEST_F(MapScreenTest, AZoomedMapHasItsOwnSwitches) {
  settings.ReadSetting("LANG");
  settings.WriteSettingValue("SET2-1", "0");
  map.State().Zoom.PushZoomStack(log, {7, 9, 9, 11});

  map.Redraw(universe, 12000, 9000);

  EXPECT_FALSE(Shows(ControlId::SystemPicture));
  EXPECT_TRUE(Shows(ControlId::EmptyCell));
}

TEST_F(MapScreenTest, NamesAreReadOnce) {
  db.Execute(mustWork, "UPDATE Systems SET realname = 'Elsewhere'");

  map.InitDataUsage(universe);

  EXPECT_EQ(map.State().Names.Of({8, 10}), "New York");
}

TEST_F(MapScreenTest, ThePlayersOwnStarMapTakesThePlaceOfThePaintedOne) {
  map.ReplaceStarMap("/folder/SysMap.jpg");

  map.Redraw(universe, 12000, 9000);

  std::optional<std::string> picture;
  for (const Control& control : map.Drawing().Controls) {
    if (control.Id == ControlId::PaintedUniverse) picture = control.Picture;
  }
  EXPECT_EQ(picture, "/folder/SysMap.jpg");
}

// On a screen of 90000 x 67500 twips, 6000 x 4500 pixels, the star map is shown larger than it is.
TEST_F(MapScreenTest, PicturesGetFinerAfterTheRedraw) {
  map.Redraw(universe, 90000, 67500);

  map.Frame().grab();
  EXPECT_TRUE(pictures.IsWanting());
  EXPECT_TRUE(WaitUntil([&] { return !pictures.IsWanting(); }));

  map.Frame().grab();
  EXPECT_FALSE(pictures.IsWanting());
}

#ifdef ORRERIX_HAS_FREED_MEMORY_PROBE
TEST_F(MapScreenTest, WhatReadingPicturesTookGoesBackToTheSystem) {
  const FreedMemoryProbe ahead;
  EXPECT_TRUE(WaitUntil([&] { return ahead.HasGoneBack(); }));

  map.Redraw(universe, 30000, 22500);  // the pictures that it scales take less than the probe
  map.Frame().grab();
  const FreedMemoryProbe finer;
  EXPECT_TRUE(WaitUntil([&] { return finer.HasGoneBack(); }));
}
#endif

}  // namespace
}  // namespace orrerix
