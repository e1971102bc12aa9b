// SPDX-License-Identifier: MIT
#include "forms/map/map_moves.h"

#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QWheelEvent>

#include "forms/map/map_controller_fixture.h"

namespace orrerix {
namespace {

// Cells of 30 pixels: cell 8, 10 has its middle at 255, 315.
class MapMovesTest : public MapControllerFixture {
 protected:
  void Turn(int angle, QPointF at = {255, 315}, Qt::MouseButtons held = Qt::NoButton) {
    QWheelEvent turn(at, Viewport()->mapToGlobal(at), {}, {0, angle}, held, {}, Qt::NoScrollPhase,
                     false);
    QApplication::sendEvent(Viewport(), &turn);
  }
  void Pinch(double value) {
    const QPointF at(255, 315);
    QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2,
                              at, at, Viewport()->mapToGlobal(at), value, {});
    QApplication::sendEvent(Viewport(), &pinch);
  }
  void Middle(QEvent::Type type, QPointF at) {
    const bool isMove = type == QEvent::MouseMove;
    const bool ends = type == QEvent::MouseButtonRelease;
    QMouseEvent event(type, at, Viewport()->mapToGlobal(at),
                      isMove ? Qt::NoButton : Qt::MiddleButton,
                      ends ? Qt::NoButton : Qt::MiddleButton, {});
    QApplication::sendEvent(Viewport(), &event);
  }

  int moves = 0;
  MapMoves mover{map, log, [this] {
                   ++moves;
                   DrawMap();
                 }};
};

// 18 columns become 12: 8.5 - 12 * 8.5 / 18 = 2.83. 19 rows become 12: 10.5 - 12 * 10.5 / 19
// = 3.87.
TEST_F(MapMovesTest, TheWheelZoomsAboutThePointer) {
  Turn(120);

  EXPECT_EQ(Visible(), (ZoomRectangle{3, 4, 14, 15}));
  EXPECT_EQ(moves, 1);
}

// Of the last steps the pointer is over other cells.
TEST_F(MapMovesTest, TheWheelEndsInTheCellThatItBeganIn) {
  for (int step = 0; step < 6; ++step) Turn(120, {241, 301});

  EXPECT_EQ(Visible(), (ZoomRectangle{8, 10, 8, 10}));
}

TEST_F(MapMovesTest, AFineWheelNeedsAWholeStep) {
  Turn(60);
  EXPECT_EQ(moves, 0);

  Turn(60);
  EXPECT_EQ(moves, 1);
}

TEST_F(MapMovesTest, TheWheelGoesBackTheWayItCame) {
  Turn(120);
  Turn(120);
  const std::size_t depth = map.State().Zoom.ZoomDepth();

  Turn(-240);

  EXPECT_EQ(depth, 2u);
  EXPECT_EQ(Visible(), ZoomRectangle());
  EXPECT_EQ(map.State().Zoom.ZoomDepth(), 0u);
  Turn(-120);
  EXPECT_EQ(moves, 4);
}

TEST_F(MapMovesTest, TheRightButtonGoesBackFromAStepOfTheWheel) {
  Turn(120);

  Click({255, 315}, Qt::RightButton);

  EXPECT_EQ(Visible(), ZoomRectangle());
}

TEST_F(MapMovesTest, TheWheelRestsDuringADragAndOnThePanel) {
  Turn(120, {255, 315}, Qt::LeftButton);
  Turn(120, QPointF(OnPanel(ControlId::Tool)));

  EXPECT_EQ(moves, 0);
}

TEST_F(MapMovesTest, APinchZooms) {
  Pinch(0.15);
  Pinch(0.15);

  EXPECT_EQ(Visible(), (ZoomRectangle{3, 4, 14, 15}));
}

// Nine rows of 8550 / 9 twips: cells of 63.3 pixels. A way of 130 is two of them.
TEST_F(MapMovesTest, TheMiddleButtonDragsByWholeCells) {
  Zoom({4, 4, 12, 12});

  Middle(QEvent::MouseButtonPress, {300, 300});
  Middle(QEvent::MouseMove, {170, 300});
  Middle(QEvent::MouseMove, {300, 235});
  Middle(QEvent::MouseButtonRelease, {300, 235});
  Middle(QEvent::MouseMove, {0, 0});

  EXPECT_EQ(Visible(), (ZoomRectangle{4, 5, 12, 13}));
  EXPECT_EQ(moves, 2);
  Click({255, 315}, Qt::RightButton);
  EXPECT_EQ(Visible(), (ZoomRectangle{4, 4, 12, 12}));
}

TEST_F(MapMovesTest, TheOtherGesturesStay) {
  Drag({10, 10}, {80, 80});

  EXPECT_EQ(Visible(), (ZoomRectangle{0, 0, 2, 2}));
  EXPECT_EQ(moves, 0);
}

}  // namespace
}  // namespace orrerix
