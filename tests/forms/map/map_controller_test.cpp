// SPDX-License-Identifier: MIT
#include "forms/map/map_controller.h"

#include <gmock/gmock.h>

#include "map_controller_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class MapControllerTest : public MapControllerFixture {};

// Cells 8, 10 and 10, 12 have their middles at 255, 315 and 315, 375.

TEST_F(MapControllerTest, ADragZoomsInWhicheverWayItGoes) {
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

TEST_F(MapControllerTest, ADragThatLeavesTheFrameEndsWithTheCellsShown) {
  Drag({255, 315}, {-50, -50});
  EXPECT_EQ(Visible(), (ZoomRectangle{0, 0, 8, 10}));
  Click({300, 300}, Qt::RightButton);

  Drag({255, 315}, {5000, 5000});
  EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 17, 18}));
}

TEST_F(MapControllerTest, ADragThatEndsOverThePanelOrAnIconIsADragAllTheSame) {
  // The tools are (5800 - 100) / 5 twips high, with their middle at 50 + 570, in row 1.
  Drag({255, 315}, OnPanel(ControlId::Tool, 4));
  EXPECT_EQ(Visible(), (ZoomRectangle{8, 1, 17, 10}));
  EXPECT_THAT(searches, IsEmpty());
  Click({10, 500}, Qt::RightButton);

  Zoom({8, 10, 9, 10});
  Drag({5, 5}, At("li01_se_base"));

  EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 8, 10}));
  EXPECT_THAT(stations, IsEmpty());
}

TEST_F(MapControllerTest, AClickOnABorderZoomsIntoBothCells) {
  Click({240, 315});  // 3600 twips: the border between columns 7 and 8
  EXPECT_EQ(Visible(), (ZoomRectangle{7, 10, 8, 10}));
  Click({5, 5}, Qt::RightButton);

  Click({255, 300});  // rows 9 and 10
  EXPECT_EQ(Visible(), (ZoomRectangle{8, 9, 8, 10}));
}

TEST_F(MapControllerTest, ZoomingIntoACellAndBackShowsTheSameMap) {
  const std::size_t before = map.Drawing().Controls.size();

  Click({255, 315});
  EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 8, 10}));
  EXPECT_THAT(Shown(ControlId::MapIcon), SizeIs(4));
  EXPECT_THAT(Sounds(), ElementsAre("ui_nav_map_fade"));
  Click({20, 300}, Qt::RightButton);

  EXPECT_EQ(Visible(), ZoomRectangle{});
  EXPECT_THAT(Shown(ControlId::MapIcon), IsEmpty());
  // The tiles that were laid for the zoomed map stay.
  EXPECT_EQ(map.Drawing().Controls.size() - Shown(ControlId::BackgroundTile).size(), before - 1);
  EXPECT_THAT(Sounds(), SizeIs(1));
}

TEST_F(MapControllerTest, ARightClickOnTheFirstRectangleDoesNothing) {
  Click({255, 315}, Qt::RightButton);

  EXPECT_EQ(redraws, 0);
  EXPECT_EQ(sound.Beeps, 0);
  EXPECT_THAT(Sounds(), IsEmpty());
}

TEST_F(MapControllerTest, AClickIntoASingleCellBeepsAndItsIconsStay) {
  Zoom({8, 10, 8, 10});

  Click({20, 300});

  EXPECT_EQ(sound.Beeps, 1);
  EXPECT_EQ(redraws, 1);
  EXPECT_THAT(Shown(ControlId::MapIcon), SizeIs(4));
  EXPECT_THAT(Sounds(), IsEmpty());
}

TEST_F(MapControllerTest, TheBandFollowsTheDragAndGoesWithIt) {
  Press({100, 100});
  Move({103, 200});  // 45 twips are too few
  EXPECT_THAT(Shown(ControlId::RubberBand), IsEmpty());

  Move({200, 150});
  ASSERT_THAT(Shown(ControlId::RubberBand), SizeIs(4));
  EXPECT_EQ(Shown(ControlId::RubberBand, 0)->Ends, (LineEnds{1500, 1500, 3000, 1500}));
  EXPECT_EQ(Shown(ControlId::RubberBand, 2)->Ends, (LineEnds{3000, 2250, 1500, 2250}));

  Move({-20, 150});  // outside the frame
  EXPECT_EQ(Shown(ControlId::RubberBand, 0)->Ends, (LineEnds{1500, 1500, -300, 1500}));
  Release({-20, 150});
  EXPECT_THAT(Shown(ControlId::RubberBand), IsEmpty());
}

TEST_F(MapControllerTest, OnlyTheLeftButtonDrawsABand) {
  Press({100, 100}, Qt::RightButton);
  Move({200, 200});

  EXPECT_THAT(Shown(ControlId::RubberBand), IsEmpty());
}

TEST_F(MapControllerTest, AMoveWithNothingOpenDoesNothing) {
  Move({255, 315});

  EXPECT_EQ(redraws, 0);
}

TEST_F(MapControllerTest, TouchingTheCaptionUnfoldsTheOptionsAndTheMapFoldsThem) {
  Move(OnPanel(ControlId::OptionsCaption));
  EXPECT_THAT(Shown(ControlId::OptionSwitch), SizeIs(6));
  EXPECT_EQ(redraws, 1);
  Move(OnPanel(ControlId::OptionSwitch, 3));
  EXPECT_EQ(redraws, 1);

  Move({255, 315});
  EXPECT_THAT(Shown(ControlId::OptionSwitch), IsEmpty());
  EXPECT_EQ(redraws, 2);
}

TEST_F(MapControllerTest, WithTheSearchPanelOpenTheCaptionDoesNothing) {
  searchPanelOpen = true;

  Move(OnPanel(ControlId::OptionsCaption));

  EXPECT_EQ(redraws, 0);
  EXPECT_THAT(Shown(ControlId::OptionSwitch), IsEmpty());
}

TEST_F(MapControllerTest, ASwitchTurnsOverOnTheWholeGridWithoutTheOtherSet) {
  Move(OnPanel(ControlId::OptionsCaption));

  Click(OnPanel(ControlId::OptionSwitch, 0));

  EXPECT_EQ(settings.ReadSetting("SET1-0"), "1");
  EXPECT_EQ(settings.ReadSetting("SET2-0"), "1");
  EXPECT_EQ(Shown(ControlId::OptionSwitch, 0)->Picture, "tools/check_on.svg");
  EXPECT_FALSE(Shown(ControlId::EmptyCell).empty());
  EXPECT_THAT(Sounds(), ElementsAre("ui_item_select"));
}

TEST_F(MapControllerTest, ASwitchTurnsOverInAZoomedMapWithoutTheOtherSet) {
  Zoom({7, 9, 9, 11});
  Move(OnPanel(ControlId::OptionsCaption));
  ASSERT_EQ(Shown(ControlId::OptionSwitch, 5)->Picture, "tools/check_on.svg");

  Click(OnPanel(ControlId::OptionLabel, 5));  // its caption does the same

  EXPECT_EQ(settings.ReadSetting("SET2-5"), "0");
  EXPECT_EQ(settings.ReadSetting("SET1-5"), "1");
  EXPECT_EQ(Shown(ControlId::OptionSwitch, 5)->Picture, "tools/check_off.svg");
  EXPECT_THAT(Shown(ControlId::SystemLabel), IsEmpty());
}

TEST_F(MapControllerTest, ThePanelShowsTheSetOfTheViewAndASettingThatIsNoNumberAsOff) {
  settings.WriteSettingValue("SET2-2", "none");
  Zoom({7, 9, 9, 11});

  Move(OnPanel(ControlId::OptionsCaption));

  EXPECT_EQ(Shown(ControlId::OptionSwitch, 1)->Picture, "tools/check_on.svg");
  EXPECT_EQ(Shown(ControlId::OptionSwitch, 2)->Picture, "tools/check_off.svg");
}

TEST_F(MapControllerTest, TheLanguagesAreGoneThroughWithAllCaptions) {
  const std::string english = *Shown(ControlId::OptionLabel, 6)->Caption;
  Move(OnPanel(ControlId::OptionsCaption));
  for (const int number : {2, 1, 0}) {
    Click(OnPanel(ControlId::OptionLabel, 6));

    FixedLanguage texts(static_cast<Language>(number));
    EXPECT_EQ(settings.ReadSetting("LANG"), std::to_string(number));
    EXPECT_EQ(Shown(ControlId::OptionLabel, 6)->Caption, texts.Text(TextId::LanguageName));
    EXPECT_EQ(Shown(ControlId::OptionsCaption, 0)->Caption, texts.Text(TextId::ShowOptions));
    for (int i = 0; i < 6; ++i)
      EXPECT_EQ(Shown(ControlId::OptionLabel, i)->Caption, texts.Text(static_cast<TextId>(i + 1)));
    EXPECT_EQ(Shown(ControlId::Tool, 0)->ToolTip, texts.Text(TextId::SearchPlaces));
    EXPECT_EQ(Shown(ControlId::Tool, 3)->ToolTip, texts.Text(TextId::SearchBribes));
    EXPECT_EQ(Shown(ControlId::InfoBoxLine, 0)->Caption, texts.Text(TextId::Slogan));
    EXPECT_EQ(Shown(ControlId::Logo, 0)->ToolTip, texts.Text(TextId::LogoTip));
  }
  EXPECT_EQ(Shown(ControlId::OptionLabel, 6)->Caption, english);
  EXPECT_THAT(Sounds(), IsEmpty());
}

TEST_F(MapControllerTest, AToolIsClickedByReleasingTheButtonOnIt) {
  Click(OnPanel(ControlId::Tool, 2));
  Press(OnPanel(ControlId::Tool, 1));
  Release(OnPanel(ControlId::Tool, 3));
  Click(OnPanel(ControlId::Tool, 4), Qt::RightButton);

  EXPECT_THAT(searches, ElementsAre(2));
  EXPECT_EQ(Visible(), ZoomRectangle{});
}

TEST_F(MapControllerTest, AStepOfTheZoomFromElsewhereSoundsOrBeeps) {
  EXPECT_TRUE(play.PushZoomStack({8, 10, 8, 10}));
  EXPECT_THAT(Sounds(), ElementsAre("ui_nav_map_fade"));

  EXPECT_FALSE(play.PushZoomStack({8, 10, 8, 10}));
  EXPECT_EQ(sound.Beeps, 1);
}

}  // namespace
}  // namespace orrerix
