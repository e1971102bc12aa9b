// SPDX-License-Identifier: MIT
#include "forms/map_play.h"

#include <gmock/gmock.h>

#include "map_play_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class MapPlayTest : public MapPlayFixture {};

// Cells 8, 10 and 10, 12 have their middles at 255, 315 and 315, 375.

TEST_F(MapPlayTest, ADragZoomsInWhicheverWayItGoes) {
  struct Case {
    QPoint From, To;
  };
  for (const Case& drag : {Case{{255, 315}, {315, 375}}, Case{{315, 375}, {255, 315}},
                           Case{{315, 315}, {255, 375}}, Case{{255, 375}, {315, 315}}}) {
    Drag(drag.From, drag.To);

    EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 10, 12}));
    Click({300, 300}, Qt::RightButton);
    EXPECT_EQ(Visible(), ZoomRectangle{});
  }
  EXPECT_EQ(redraws, 8);
}

TEST_F(MapPlayTest, ADragThatLeavesTheFrameEndsWithTheCellsShown) {
  Drag({255, 315}, {-50, -50});
  EXPECT_EQ(Visible(), (ZoomRectangle{0, 0, 8, 10}));
  Click({300, 300}, Qt::RightButton);

  Drag({255, 315}, {5000, 5000});
  EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 17, 18}));
}

TEST_F(MapPlayTest, ADragThatEndsOverThePanelOrAnIconIsADragAllTheSame) {
  // The tools are (5800 - 100) / 5 twips high, with their middle at 50 + 570, in row 1.
  Drag({255, 315}, OnPanel("StationSearch", 4));
  EXPECT_EQ(Visible(), (ZoomRectangle{8, 1, 17, 10}));
  EXPECT_THAT(searches, IsEmpty());
  Click({10, 500}, Qt::RightButton);

  Zoom({8, 10, 9, 10});
  Drag({5, 5}, At("li01_se_base"));

  EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 8, 10}));
  EXPECT_THAT(stations, IsEmpty());
}

TEST_F(MapPlayTest, AClickOnABorderZoomsIntoBothCells) {
  Click({240, 315});  // 3600 twips: the border between columns 7 and 8
  EXPECT_EQ(Visible(), (ZoomRectangle{7, 10, 8, 10}));
  Click({5, 5}, Qt::RightButton);

  Click({255, 300});  // rows 9 and 10
  EXPECT_EQ(Visible(), (ZoomRectangle{8, 9, 8, 10}));
}

TEST_F(MapPlayTest, ZoomingIntoACellAndBackShowsTheSameMap) {
  const std::size_t before = map.Drawing().Controls.size();

  Click({255, 315});
  EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 8, 10}));
  EXPECT_THAT(Shown("Image1"), SizeIs(4));
  EXPECT_THAT(Sounds(), ElementsAre("ui_nav_map_fade"));
  Click({20, 300}, Qt::RightButton);

  EXPECT_EQ(Visible(), ZoomRectangle{});
  EXPECT_THAT(Shown("Image1"), IsEmpty());
  // The tiles that were laid for the zoomed map stay.
  EXPECT_EQ(map.Drawing().Controls.size() - Shown("Hintergrund").size(), before - 1);
  EXPECT_THAT(Sounds(), SizeIs(1));
}

TEST_F(MapPlayTest, ARightClickOnTheFirstRectangleDoesNothing) {
  Click({255, 315}, Qt::RightButton);

  EXPECT_EQ(redraws, 0);
  EXPECT_EQ(sound.Beeps, 0);
  EXPECT_THAT(Sounds(), IsEmpty());
}

TEST_F(MapPlayTest, AClickIntoASingleCellBeepsAndItsIconsStay) {
  Zoom({8, 10, 8, 10});

  Click({20, 300});

  EXPECT_EQ(sound.Beeps, 1);
  EXPECT_EQ(redraws, 1);
  EXPECT_THAT(Shown("Image1"), SizeIs(4));
  EXPECT_THAT(Sounds(), IsEmpty());
}

TEST_F(MapPlayTest, TheBandFollowsTheDragAndGoesWithIt) {
  Press({100, 100});
  Move({103, 200});  // 45 twips are too few
  EXPECT_THAT(Shown("MouseLine"), IsEmpty());

  Move({200, 150});
  ASSERT_THAT(Shown("MouseLine"), SizeIs(4));
  EXPECT_EQ(Shown("MouseLine", 0)->Ends, (LineEnds{1500, 1500, 3000, 1500}));
  EXPECT_EQ(Shown("MouseLine", 2)->Ends, (LineEnds{3000, 2250, 1500, 2250}));

  Move({-20, 150});  // outside the frame
  EXPECT_EQ(Shown("MouseLine", 0)->Ends, (LineEnds{1500, 1500, -300, 1500}));
  Release({-20, 150});
  EXPECT_THAT(Shown("MouseLine"), IsEmpty());
}

TEST_F(MapPlayTest, OnlyTheLeftButtonDrawsABand) {
  Press({100, 100}, Qt::RightButton);
  Move({200, 200});

  EXPECT_THAT(Shown("MouseLine"), IsEmpty());
}

TEST_F(MapPlayTest, AMoveWithNothingOpenDoesNothing) {
  Move({255, 315});

  EXPECT_EQ(redraws, 0);
}

TEST_F(MapPlayTest, TouchingTheCaptionUnfoldsTheOptionsAndTheMapFoldsThem) {
  Move(OnPanel("ShowOptionsLabel"));
  EXPECT_THAT(Shown("SetImage"), SizeIs(6));
  EXPECT_EQ(redraws, 1);
  Move(OnPanel("SetImage", 3));
  EXPECT_EQ(redraws, 1);

  Move({255, 315});
  EXPECT_THAT(Shown("SetImage"), IsEmpty());
  EXPECT_EQ(redraws, 2);
}

TEST_F(MapPlayTest, WithTheSearchPanelOpenTheCaptionDoesNothing) {
  searchPanelOpen = true;

  Move(OnPanel("ShowOptionsLabel"));

  EXPECT_EQ(redraws, 0);
  EXPECT_THAT(Shown("SetImage"), IsEmpty());
}

TEST_F(MapPlayTest, ASwitchTurnsOverOnTheWholeGridWithoutTheOtherSet) {
  Move(OnPanel("ShowOptionsLabel"));

  Click(OnPanel("SetImage", 0));

  EXPECT_EQ(settings.ReadSetting("SET1-0"), "1");
  EXPECT_EQ(settings.ReadSetting("SET2-0"), "1");
  EXPECT_EQ(Shown("SetImage", 0)->Picture, "tools/check_on.svg");
  EXPECT_FALSE(Shown("Blanko").empty());
  EXPECT_THAT(Sounds(), ElementsAre("ui_item_select"));
}

TEST_F(MapPlayTest, ASwitchTurnsOverInAZoomedMapWithoutTheOtherSet) {
  Zoom({7, 9, 9, 11});
  Move(OnPanel("ShowOptionsLabel"));
  ASSERT_EQ(Shown("SetImage", 5)->Picture, "tools/check_on.svg");

  Click(OnPanel("SetLabel", 5));  // its caption does the same

  EXPECT_EQ(settings.ReadSetting("SET2-5"), "0");
  EXPECT_EQ(settings.ReadSetting("SET1-5"), "1");
  EXPECT_EQ(Shown("SetImage", 5)->Picture, "tools/check_off.svg");
  EXPECT_THAT(Shown("SysmapLabel"), IsEmpty());
}

TEST_F(MapPlayTest, ThePanelShowsTheSetOfTheViewAndASettingThatIsNoNumberAsOff) {
  settings.WriteSettingValue("SET2-2", "none");
  Zoom({7, 9, 9, 11});

  Move(OnPanel("ShowOptionsLabel"));

  EXPECT_EQ(Shown("SetImage", 1)->Picture, "tools/check_on.svg");
  EXPECT_EQ(Shown("SetImage", 2)->Picture, "tools/check_off.svg");
}

TEST_F(MapPlayTest, TheLanguagesAreGoneThroughWithAllCaptions) {
  const std::string english = *Shown("SetLabel", 6)->Caption;
  Move(OnPanel("ShowOptionsLabel"));
  for (const int number : {2, 1, 0}) {
    Click(OnPanel("SetLabel", 6));

    FixedLanguage texts(static_cast<Language>(number));
    EXPECT_EQ(settings.ReadSetting("LANG"), std::to_string(number));
    EXPECT_EQ(Shown("SetLabel", 6)->Caption, texts.Text(TextId::LanguageName));
    EXPECT_EQ(Shown("ShowOptionsLabel", 0)->Caption, texts.Text(TextId::ShowOptions));
    EXPECT_EQ(Shown("SetLabel", 0)->Caption, texts.Text(TextId::EmptyBackgrounds));
    EXPECT_EQ(Shown("SetLabel", 1)->Caption, texts.Text(TextId::SystemBackgrounds));
    EXPECT_EQ(Shown("SetLabel", 2)->Caption, texts.Text(TextId::JumpGateLines));
    EXPECT_EQ(Shown("SetLabel", 3)->Caption, texts.Text(TextId::JumpHoleLines));
    EXPECT_EQ(Shown("SetLabel", 4)->Caption, texts.Text(TextId::TradeLaneLines));
    EXPECT_EQ(Shown("SetLabel", 5)->Caption, texts.Text(TextId::SystemNames));
    EXPECT_EQ(Shown("StationSearch", 0)->ToolTip, texts.Text(TextId::SearchPlaces));
    EXPECT_EQ(Shown("StationSearch", 3)->ToolTip, texts.Text(TextId::SearchBribes));
    EXPECT_EQ(Shown("WRTP", 0)->Caption, texts.Text(TextId::Slogan));
    EXPECT_EQ(Shown("ImageClan", 0)->ToolTip, texts.Text(TextId::LogoTip));
  }
  EXPECT_EQ(Shown("SetLabel", 6)->Caption, english);
  EXPECT_THAT(Sounds(), IsEmpty());
}

TEST_F(MapPlayTest, AToolIsClickedByReleasingTheButtonOnIt) {
  Click(OnPanel("StationSearch", 2));
  Press(OnPanel("StationSearch", 1));
  Release(OnPanel("StationSearch", 3));
  Click(OnPanel("StationSearch", 4), Qt::RightButton);

  EXPECT_THAT(searches, ElementsAre(2));
  EXPECT_EQ(Visible(), ZoomRectangle{});
}

TEST_F(MapPlayTest, AStepOfTheZoomFromElsewhereSoundsOrBeeps) {
  EXPECT_TRUE(play.PushZoomStack({8, 10, 8, 10}));
  EXPECT_THAT(Sounds(), ElementsAre("ui_nav_map_fade"));

  EXPECT_FALSE(play.PushZoomStack({8, 10, 8, 10}));
  EXPECT_EQ(sound.Beeps, 1);
}

}  // namespace
}  // namespace orrerix
