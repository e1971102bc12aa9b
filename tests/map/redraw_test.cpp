// SPDX-License-Identifier: MIT
#include "map/redraw.h"

#include <gmock/gmock.h>

#include "redraw_fixture.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST_F(Redraw, TheWholeGridIsStackedFromTheTileToThePanel) {
  Jump(kJumpGate);
  Lane();
  Dock("dock", "depot");

  EXPECT_THAT(Layers(Draw()), ElementsAre(ControlId::BackgroundTile, ControlId::PaintedUniverse,
                                          ControlId::SystemLabel, ControlId::MapLine,
                                          ControlId::Border, ControlId::PanelFrame));
}

TEST_F(Redraw, AZoomedMapIsStackedFromTheTilesToThePanel) {
  Zoom(kTwoCells);
  Jump(kJumpGate);
  Lane();
  Dock("dock", "depot");

  EXPECT_THAT(Layers(Draw()),
              ElementsAre(ControlId::BackgroundTile, ControlId::SystemPicture, ControlId::EmptyCell,
                          ControlId::SystemLabel, ControlId::MapLine, ControlId::MapIcon,
                          ControlId::Border, ControlId::PanelFrame));
}

TEST_F(Redraw, ThePaintedUniverseFollowsTheFrameAndNotTheCells) {
  const MapDrawing drawing = Draw();

  // 17450 / 18 x 17, as a 32-bit float
  const Control painted = Named(drawing, ControlId::PaintedUniverse).at(0);
  EXPECT_EQ(painted.Place, (TwipRect{0, 0, 16480.5546875, 17450}));
  // Its border: 16480.55 + 20 = 16500.55, rounded; the right corner is 315 wide.
  EXPECT_EQ(Named(drawing, ControlId::Border).at(2).Place.Right(), 16501);
}

TEST_F(Redraw, TheFreeSpaceDecidesWhereThePanelStands) {
  // Frame 23800 x 17450, cells of 918: 23800 - 16524 - 100 and 17450 - 17442.
  const MapDrawing drawing = Draw();

  EXPECT_EQ(drawing.FreeRight, 7176);
  EXPECT_EQ(drawing.FreeBelow, 8);
  EXPECT_EQ(drawing.Panel, PanelPlace::Right);
  EXPECT_EQ(drawing.PanelBox, (TwipRect{16624, 0, 7176, 17450}));
}

TEST_F(Redraw, MoreRoomBelowPutsThePanelBelow) {
  formWidth = 10000;
  formHeight = 20550;  // frame 9800 x 20000, cells of 544

  const MapDrawing drawing = Draw();

  EXPECT_EQ(drawing.Panel, PanelPlace::Below);
  EXPECT_EQ(drawing.FreeBelow, 9664);  // 20000 - 19 x 544
  EXPECT_EQ(drawing.PanelBox, (TwipRect{0, 10336, 9800, 9664}));
}

TEST_F(Redraw, EqualRoomPutsThePanelBelow) {
  Zoom({3, 3, 3, 3});
  formWidth = 5300;  // frame 5100 wide and 5000 high: 5100 - 5000 - 100 = 0 = 5000 - 5000
  formHeight = 5550;

  const MapDrawing drawing = Draw();

  EXPECT_EQ(drawing.FreeRight, 0);
  EXPECT_EQ(drawing.FreeBelow, 0);
  EXPECT_EQ(drawing.Panel, PanelPlace::Below);
}

TEST_F(Redraw, TheWholeGridHasNoIcons) {
  Jump(kJumpGate);
  Dock("dock", "depot");

  EXPECT_THAT(Named(Draw(), ControlId::MapIcon), IsEmpty());
}

TEST_F(Redraw, AGateLineIsSolidWhiteAndNamesItsSystems) {
  Jump(kJumpGate);

  const Control line = Named(Draw(), ControlId::MapLine).at(0);

  EXPECT_EQ(line.Line, LineKind::JumpGate);
  EXPECT_EQ(line.Style, LineStyle::Solid);
  EXPECT_EQ(line.BorderColor.Text(), "0xFFFFFF");
  EXPECT_EQ(std::get<ConnectedPlaces>(line.Subject), (ConnectedPlaces{"Lantern", "Ember"}));
  EXPECT_EQ(line.Index, 1);
  // Cells of 918: 7 x 918 + 459, 4 x 918 + 459, 8 x 918 + 229.5, 4 x 918 + 688.5
  EXPECT_EQ(line.Ends, (LineEnds{6885.0F, 4131.0F, 7573.5F, 4360.5F}));
}

TEST_F(Redraw, AHoleLineIsDottedGrey) {
  Jump(kJumpHole);

  const Control line = Named(Draw(), ControlId::MapLine).at(0);

  EXPECT_EQ(line.Line, LineKind::JumpHole);
  EXPECT_EQ(line.Style, LineStyle::Dotted);
  EXPECT_EQ(line.BorderColor.Text(), "0x808080");
}

TEST_F(Redraw, LanesAreBlueAndFollowTheJumpLines) {
  Lane();
  Jump(kJumpGate);

  const ControlList lines = Named(Draw(), ControlId::MapLine);

  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[1].Index, 2);
  EXPECT_EQ(lines[1].BorderColor.Text(), "0xFF0000");
  EXPECT_EQ(lines[1].Line, LineKind::TradeLane);
  EXPECT_EQ(std::get<ConnectedPlaces>(lines[1].Subject), (ConnectedPlaces{"Jetty", "Harbour"}));
}

TEST_F(Redraw, JumpLinesComeInTheOrderOfTheirKind) {
  Jump(kJumpHole);
  Jump(kJumpGate);

  const ControlList lines = Named(Draw(), ControlId::MapLine);

  EXPECT_EQ(lines.at(0).Style, LineStyle::Solid);
  EXPECT_EQ(lines.at(1).Style, LineStyle::Dotted);
}

TEST_F(Redraw, AConnectionOfAnotherKindHasNoLineButGateIcons) {
  Zoom(kTwoCells);
  Jump(2);

  const MapDrawing drawing = Draw();

  EXPECT_THAT(Named(drawing, ControlId::MapLine), IsEmpty());
  const ControlList icons = Named(drawing, ControlId::MapIcon);
  ASSERT_EQ(icons.size(), 2u);
  EXPECT_EQ(icons[0].Picture, "Jumpgate");
  EXPECT_THAT(IconText(icons[0]), ::testing::StartsWith("\r\n  Jumpgate\r\n"));
}

TEST_F(Redraw, EachEndOfAConnectionTellsWhereItIsAndWhereItLeads) {
  Zoom(kTwoCells);
  Jump(kJumpHole);

  const ControlList icons = Named(Draw(), ControlId::MapIcon);

  // 8 x 0.25 - 0.35 = 1.65; 8 x 0.75 - 0.5 = 5.5
  EXPECT_EQ(IconText(icons.at(0)),
            "\r\n  Jumphole\r\n  Lantern [X=D.6/Y=4.5] TO\r\n  Ember [X=B.6/Y=6.5]");
  EXPECT_EQ(IconText(icons.at(1)),
            "\r\n  Jumphole\r\n  Ember [X=B.6/Y=6.5] TO\r\n  Lantern [X=D.6/Y=4.5]");
  EXPECT_EQ(icons.at(1).Picture, "JumpHole");
}

TEST_F(Redraw, IconsStayWhenAllLinesAreOff) {
  Zoom(kTwoCells);
  switches = MapOptions{};
  Jump(kJumpGate);
  Lane();
  Dock("dock", "depot");

  const MapDrawing drawing = Draw();

  EXPECT_THAT(Named(drawing, ControlId::MapLine), IsEmpty());
  EXPECT_EQ(Named(drawing, ControlId::MapIcon).size(), 3u);
}

TEST_F(Redraw, AnIconIsCentredOnItsPointAndShrinksWithTheColumns) {
  Dock("dock", "depot");
  const auto iconOf = [&](const ZoomRectangle& rectangle) {
    Zoom(rectangle);
    return Named(Draw(), ControlId::MapIcon).at(0).Place;
  };

  // One cell of 17450: its middle is 8725. Six columns: cells of 23800 / 6 = 3966.67, rounded
  // to 3967, the middle 1983.5; not 33 twips but 40.
  EXPECT_EQ(iconOf({7, 4, 7, 4}), (TwipRect{8625, 8625, 200, 200}));
  EXPECT_EQ(iconOf({7, 4, 12, 4}), (TwipRect{1963.5, 1963.5, 40, 40}));
  EXPECT_EQ(iconOf({7, 4, 9, 4}).Width, static_cast<double>(static_cast<float>(200.0 / 3)));
}

TEST_F(Redraw, OnlyObjectsOfTheRectangleHaveIcons) {
  Zoom(kTwoCells);
  Dock("inside", "SECRET_wreck", 8, 4);
  Dock("outside", "depot", 9, 4);

  const ControlList icons = Named(Draw(), ControlId::MapIcon);

  ASSERT_EQ(icons.size(), 1u);
  EXPECT_EQ(IconText(icons[0]), "inside");
  EXPECT_EQ(icons[0].Picture, "NavyFighter");
}

TEST_F(Redraw, LabelsNameTheSystemsOfTheRectangle) {
  Zoom({8, 4, 9, 5});

  const ControlList labels = Named(Draw(), ControlId::SystemLabel);

  ASSERT_EQ(labels.size(), 1u);
  EXPECT_EQ(labels[0].Caption, "Ember");
  EXPECT_EQ(labels[0].Index, 8 + 18 * 4);
  EXPECT_EQ(labels[0].FontSize, 10);
  EXPECT_EQ(labels[0].ForeColor->Text(), "0x00CCCC");
  EXPECT_EQ(labels[0].BackColor->Text(), "0x400000");
}

TEST_F(Redraw, ANameShrinksUntilItFitsItsCell) {
  // 15 characters of 12 twips a point in a cell of 918: 5 points are 900, 6 are 1080.
  state.Names.Set({7, 4}, "Fifteen letters");

  EXPECT_EQ(Named(Draw(), ControlId::SystemLabel).at(0).FontSize, 5);
}

TEST_F(Redraw, ANameThatNeverFitsIsShownAtSizeOne) {
  state.Names.Set({7, 4}, std::string(100, 'x'));

  EXPECT_EQ(Named(Draw(), ControlId::SystemLabel).at(0).FontSize, 1);
}

TEST_F(Redraw, TheBackgroundIsTiledOneTileFurtherThanTheFrame) {
  Zoom(kTwoCells);
  formWidth = 200 + 5000;
  formHeight = 550 + 3000;

  const ControlList tiles = Named(Draw(), ControlId::BackgroundTile);

  // Three tiles of 1920 cover 5000, two rows cover 3000, and one more tile begins a third row.
  ASSERT_EQ(tiles.size(), 7u);
  EXPECT_EQ(tiles[2].Place, (TwipRect{3840, 0, 1920, 1920}));
  EXPECT_EQ(tiles[3].Place, (TwipRect{0, 1920, 1920, 1920}));
  EXPECT_EQ(tiles[6].Place, (TwipRect{0, 3840, 1920, 1920}));
}

TEST_F(Redraw, TilesStayWhenTheMapIsWholeAgain) {
  Zoom(kTwoCells);
  Draw();
  Zoom({});

  EXPECT_GT(Named(Draw(), ControlId::BackgroundTile).size(), 1u);
}

TEST_F(Redraw, FillersCoverEveryCellWithoutASystem) {
  Zoom(kTwoCells);

  const ControlList fillers = Named(Draw(), ControlId::EmptyCell);

  ASSERT_EQ(fillers.size(), 18u * 19 - 2);
  EXPECT_EQ(fillers.front().Index, 1);
  // Columns first: the second filler is cell 0, 1.
  EXPECT_EQ(fillers[1].Place.Left, fillers[0].Place.Left);
  EXPECT_GT(fillers[1].Place.Top, fillers[0].Place.Top);
}

TEST_F(Redraw, SystemPicturesStandInTheirCellsWhereverTheyLie) {
  Zoom(kTwoCells);

  const ControlList pictures = Named(Draw(), ControlId::SystemPicture);

  ASSERT_EQ(pictures.size(), 47u);
  // The first belongs to cell 8, 6; cells of 23800 / 2.
  EXPECT_EQ(pictures[0].Place, (TwipRect{11900, 23800, 11900, 11900}));
}

TEST_F(Redraw, TheBorderOfAZoomedMapSurroundsTheShownCells) {
  Zoom(kTwoCells);

  const ControlList border = Named(Draw(), ControlId::Border);

  EXPECT_EQ(border.at(7).Place.Right(), 2 * 11900 + 100);
  EXPECT_EQ(border.at(7).Place.Bottom(), 11900);
}

TEST_F(Redraw, ADatabaseWithoutRowsGivesAMapWithoutLines) {
  Zoom(kTwoCells);

  const MapDrawing drawing = Draw();

  EXPECT_THAT(Named(drawing, ControlId::MapLine), IsEmpty());
  EXPECT_THAT(Named(drawing, ControlId::MapIcon), IsEmpty());
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(Redraw, SurplusElementsOfTheLastRedrawVanish) {
  Zoom(kTwoCells);
  Jump(kJumpGate);
  Dock("dock", "depot");
  ASSERT_EQ(Named(Draw(), ControlId::MapIcon).size(), 3u);
  db.Execute(mustWork, "DELETE FROM DockObjects");

  EXPECT_EQ(Named(Draw(), ControlId::MapIcon).size(), 2u);
}

TEST_F(Redraw, APanelBelowKeepsTheToolsWhereTheyWereAtTheRight) {
  const auto atRight = PlaceOf(Draw().Controls, ControlId::Tool);
  Zoom(kTwoCells);

  const MapDrawing drawing = Draw();

  // Two cells of 11900 leave 17450 - 11900 = 5550 below; panel 23800 - 18 x 918 - 100 wide.
  ASSERT_EQ(drawing.Panel, PanelPlace::Below);
  const auto below = PlaceOf(drawing.Controls, ControlId::Tool);
  ASSERT_TRUE(atRight && below);
  EXPECT_EQ(below->Left, 50);
  EXPECT_EQ(below->Top, 11900 + 50);
  EXPECT_EQ(below->Width, atRight->Width);
}

TEST_F(Redraw, APanelThatIsBelowFromTheStartHasToolsAndOptionsAsTheWholeGridHadThem) {
  Zoom(kTwoCells);

  const MapDrawing drawing = Draw();

  ASSERT_EQ(drawing.Panel, PanelPlace::Below);
  // (23800 - 16524 - 100 - 100) / 5 = 1415.2
  EXPECT_EQ(PlaceOf(drawing.Controls, ControlId::Tool)->Width, 1415);
  EXPECT_TRUE(PlaceOf(drawing.Controls, ControlId::OptionsCaption));
  EXPECT_TRUE(PlaceOf(drawing.Controls, ControlId::OptionLabel));
}

TEST_F(Redraw, AFormWithoutRoomAtTheRightHasToolsAllTheSame) {
  formWidth = 12000;
  formHeight = 18000;

  // (3000 - 100) / 5
  EXPECT_EQ(PlaceOf(Draw().Controls, ControlId::Tool)->Width, 580);
}

TEST_F(Redraw, AMapThatFillsTheFrameIsOverlaidByTheTools) {
  Zoom({0, 0, 1, 0});
  formWidth = 20200;  // two cells of 10000
  formHeight = 10650;

  const MapDrawing drawing = Draw();

  ASSERT_EQ(drawing.FreeBelow, 100);
  EXPECT_FALSE(drawing.Controls.back().ClipsChildren);
  EXPECT_LT(PlaceOf(drawing.Controls, ControlId::Tool)->Top, 10000);
}

TEST_F(Redraw, IconsHaveADarkBorder) {
  Zoom(kTwoCells);
  Jump(kJumpGate);
  Dock("dock", "depot");

  for (const Control& icon : Named(Draw(), ControlId::MapIcon)) {
    EXPECT_TRUE(icon.Bordered);
    EXPECT_LT(icon.BorderColor.Red() + icon.BorderColor.Green() + icon.BorderColor.Blue(), 255);
  }
}

}  // namespace
}  // namespace orrerix
