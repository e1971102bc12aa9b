// SPDX-License-Identifier: MIT
#include "map/gestures.h"

#include <gmock/gmock.h>

#include "map/game_sounds.h"
#include "support/fake_message_boxes.h"

namespace orrerix {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

// A frame of 19000 x 19000 twips: cells of 1000 when the whole grid is shown.
class Gestures : public ::testing::Test {
 protected:
  static constexpr TwipRect kFrame{50, 50, 19000, 19000};

  CellGeometry Cells() const { return CellGeometry(kFrame, state.Zoom.Current()); }

  void ShowIcon() { state.Objects.Icons = {MakePicture(ControlId::MapIcon, 1, {}, "Jumpgate")}; }
  bool Unloaded() const { return state.Objects.Icons.empty(); }

  ReleaseAnswer Drag(float x1, float y1, float x2, float y2) {
    ShowIcon();
    gestures.MouseDown(x1, y1);
    return gestures.MouseUp(PointerButton::Left, Cells(), x2, y2);
  }
  ReleaseAnswer Click(float x, float y) { return Drag(x, y, x, y); }
  ReleaseAnswer RightClick() {
    ShowIcon();
    gestures.MouseDown(500, 500);
    return gestures.MouseUp(PointerButton::Right, Cells(), 500, 500);
  }

  MapState state;
  FakeMessageBoxes messages;
  ErrorLog log{messages, AppVersion{1, 0, 0}};
  MapGestures gestures{log, state};
};

TEST_F(Gestures, ADragZoomsIntoAllCellsThatItTouches) {
  const ReleaseAnswer answer = Drag(2900, 3900, 4100, 5100);

  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{2, 3, 4, 5}));
  EXPECT_TRUE(Unloaded());
  EXPECT_TRUE(answer.Redraw);
  EXPECT_FALSE(answer.Beep);
  EXPECT_EQ(answer.Sound, R"(\DATA\AUDIO\SOUNDS\UI\ui_nav_map_fade.wav)");
}

TEST_F(Gestures, TheDirectionOfADragDoesNotMatter) {
  for (const auto& [x1, y1, x2, y2] :
       {std::array{4100.F, 5100.F, 2900.F, 3900.F}, std::array{4100.F, 3900.F, 2900.F, 5100.F},
        std::array{2900.F, 5100.F, 4100.F, 3900.F}}) {
    state.Zoom.Reset();
    Drag(x1, y1, x2, y2);
    EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{2, 3, 4, 5}));
  }
}

TEST_F(Gestures, AClickZoomsIntoTheCellUnderTheMouse) {
  Click(7500, 4500);

  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{7, 4, 7, 4}));
}

TEST_F(Gestures, AClickOnABorderZoomsIntoBothCells) {
  Click(7000, 4500);

  // 7000 is not beyond the right edge of column 6, nor before the left edge of column 7.
  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{6, 4, 7, 4}));
}

TEST_F(Gestures, AClickOnACornerZoomsIntoFourCells) {
  Click(7000, 4000);

  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{6, 3, 7, 4}));
}

TEST_F(Gestures, ADragTooSmallForTheBandZoomsAllTheSame) {
  Drag(6990, 4500, 7010, 4500);

  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{6, 4, 7, 4}));
}

TEST_F(Gestures, PlacesInAZoomedMapCountFromItsOwnCorner) {
  state.Zoom.Reset({5, 5, 8, 8});  // four columns: cells of 4750

  Drag(4800, 100, 9400, 4600);

  // Column 6 begins at 4750 and ends at 9500; row 5 ends at 4750.
  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{6, 5, 6, 5}));
}

TEST_F(Gestures, ReleasedOutsideTheFrameADragReachesTheEdgeOfWhatIsShown) {
  state.Zoom.Reset({5, 5, 8, 8});

  Drag(4800, 4800, -90000, 90000);

  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{5, 6, 6, 8}));
}

TEST_F(Gestures, WhollyOutsideTheFrameADragEndsInTheCellsBeside) {
  state.Zoom.Reset({5, 5, 8, 8});

  Click(-100, -90000);

  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{5, 5, 5, 5}));
}

TEST_F(Gestures, ADragThatBeginsRightOfTheLastColumnShownTakesThatColumnsNeighbours) {
  state.Zoom.Reset({5, 5, 8, 8});

  // 20000 lies in the fifth column of 4750, the one after the last shown.
  Drag(20000, 100, 21000, 100);

  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{9, 5, 9, 5}));
}

TEST_F(Gestures, FarRightOfTheMapTheLastColumnOfTheGridIsTaken) {
  Drag(90000, 100, 95000, 100);

  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{17, 0, 17, 0}));
}

TEST_F(Gestures, FarBelowTheMapTheLastRowOfTheGridIsTaken) {
  Click(100, 90000);

  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{0, 18, 0, 18}));
}

TEST_F(Gestures, OnAFrameWithoutRoomTheSearchEndsAtTheEdgesOfTheGrid) {
  const CellGeometry none(TwipRect{}, state.Zoom.Current());

  gestures.MouseDown(-1, 1);
  gestures.MouseUp(PointerButton::Left, none, -1, 1);

  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{0, 18, 0, 18}));
}

TEST_F(Gestures, AClickIntoASingleCellBeepsAndRedrawsItsIcons) {
  Click(7500, 4500);

  const ReleaseAnswer answer = Click(9000, 9000);

  EXPECT_EQ(state.Zoom.Current(), (ZoomRectangle{7, 4, 7, 4}));
  EXPECT_EQ(state.Zoom.ZoomDepth(), 1u);
  EXPECT_TRUE(answer.Beep);
  EXPECT_EQ(answer.Sound, "");
  EXPECT_TRUE(Unloaded());
  EXPECT_TRUE(answer.Redraw);
}

TEST_F(Gestures, ADragOverTheWholeGridIsALevelOfItsOwn) {
  const ReleaseAnswer answer = Drag(500, 500, 17500, 18500);

  EXPECT_EQ(state.Zoom.Current(), ZoomRectangle{});
  EXPECT_EQ(state.Zoom.ZoomDepth(), 1u);
  EXPECT_EQ(answer.Sound, kZoomSound);
}

TEST_F(Gestures, ARightClickGoesBackWithoutASound) {
  Click(7500, 4500);

  const ReleaseAnswer answer = RightClick();

  EXPECT_EQ(state.Zoom.Current(), ZoomRectangle{});
  EXPECT_TRUE(Unloaded());
  EXPECT_TRUE(answer.Redraw);
  EXPECT_FALSE(answer.Beep);
  EXPECT_EQ(answer.Sound, "");
}

TEST_F(Gestures, ARightClickOnTheFirstRectangleDoesNothing) {
  const ReleaseAnswer answer = RightClick();

  EXPECT_FALSE(Unloaded());
  EXPECT_FALSE(answer.Redraw);
  EXPECT_FALSE(answer.Beep);
  EXPECT_EQ(answer.Sound, "");
}

TEST_F(Gestures, OtherButtonsDoNothing) {
  gestures.MouseDown(500, 500);
  const ReleaseAnswer answer = gestures.MouseUp(PointerButton::None, Cells(), 500, 500);

  EXPECT_FALSE(answer.Redraw);
  EXPECT_EQ(state.Zoom.ZoomDepth(), 0u);
}

TEST_F(Gestures, TheBandRunsRoundFromThePress) {
  gestures.MouseDown(100, 200);

  const MoveAnswer answer = gestures.MouseMove(PointerButton::Left, 300, 500, false);

  ASSERT_THAT(answer.RubberBand, SizeIs(4));
  EXPECT_EQ(answer.RubberBand[0].Ends, (LineEnds{100, 200, 300, 200}));
  EXPECT_EQ(answer.RubberBand[1].Ends, (LineEnds{300, 200, 300, 500}));
  EXPECT_EQ(answer.RubberBand[2].Ends, (LineEnds{300, 500, 100, 500}));
  EXPECT_EQ(answer.RubberBand[3].Ends, (LineEnds{100, 500, 100, 200}));
  for (const Control& line : answer.RubberBand) {
    EXPECT_EQ(line.Id, ControlId::RubberBand);
    EXPECT_EQ(line.BorderColor.Text(), "0x00FFFF");
  }
}

TEST_F(Gestures, TheBandNeedsMoreThanFiftyTwipsBothWays) {
  gestures.MouseDown(1000, 1000);
  const auto band = [&](float x, float y) {
    return gestures.MouseMove(PointerButton::Left, x, y, false).RubberBand;
  };

  EXPECT_THAT(band(1050, 2000), IsEmpty());
  EXPECT_THAT(band(2000, 1050), IsEmpty());
  EXPECT_THAT(band(950, 2000), IsEmpty());
  EXPECT_THAT(band(1051, 1051), SizeIs(4));
  EXPECT_THAT(band(949, 949), SizeIs(4));
}

TEST_F(Gestures, OnlyTheLeftButtonDrawsTheBand) {
  gestures.MouseDown(0, 0);

  EXPECT_THAT(gestures.MouseMove(PointerButton::Right, 900, 900, false).RubberBand, IsEmpty());
  EXPECT_THAT(gestures.MouseMove(PointerButton::None, 900, 900, false).RubberBand, IsEmpty());
}

TEST_F(Gestures, AMoveFoldsTheOptionsOnce) {
  state.OptionsOpen = true;

  EXPECT_TRUE(gestures.MouseMove(PointerButton::None, 0, 0, false).Redraw);
  EXPECT_FALSE(state.OptionsOpen);
  EXPECT_FALSE(gestures.MouseMove(PointerButton::None, 0, 0, false).Redraw);
}

TEST_F(Gestures, AMoveEndsTheHoverOfAnIcon) {
  EXPECT_TRUE(gestures.MouseMove(PointerButton::None, 0, 0, true).EndHover);
}

TEST_F(Gestures, AMoveWithNothingOpenAndNoButtonDoesNothing) {
  gestures.MouseDown(0, 0);

  const MoveAnswer answer = gestures.MouseMove(PointerButton::None, 900, 900, false);

  EXPECT_FALSE(answer.Redraw);
  EXPECT_FALSE(answer.EndHover);
  EXPECT_THAT(answer.RubberBand, IsEmpty());
}

}  // namespace
}  // namespace orrerix
