// SPDX-License-Identifier: MIT
#include "forms/map/map_way.h"

#include <QImage>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

// A map of 18 by 19 cells; each is 600 twips, 40 pixels, wide.
class MapWayTest : public ::testing::Test {
 protected:
  MapWayTest() {
    frame.resize(720, 760);
    frame.show();
    drawing.Frame = {0, 0, 720.0 * 15, 760.0 * 15};
    drawing.Cells = CellGeometry({0, 0, 720.0 * 15, 760.0 * 15}, {});
    way.Follow(drawing);
  }

  static MapPlace MiddleOf(int x, int y) { return {{x, y}, {0.5, 0.5}}; }

  // What of the way is at the middle of a cell.
  QColor ColorAt(double x, double y) {
    QImage picture(way.size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    way.render(&picture, {}, {}, QWidget::DrawChildren);
    const double size = drawing.Cells.CellSize() / 15.0;
    return picture.pixelColor(static_cast<int>((x + 0.5) * size),
                              static_cast<int>((y + 0.5) * size));
  }

  QGraphicsView frame;
  MapWay& way = *new MapWay(frame);
  MapDrawing drawing;
};

TEST_F(MapWayTest, ALaneIsALineBetweenItsEnds) {
  way.Show({{LegKind::Lane, MiddleOf(2, 3), MiddleOf(6, 3)}});

  EXPECT_TRUE(way.isVisible());
  EXPECT_EQ(ColorAt(5, 3), QColor(0xFFFFC040));
  EXPECT_EQ(ColorAt(8, 3).alpha(), 0);
  EXPECT_EQ(ColorAt(5, 5).alpha(), 0);
}

// The arrow in the middle of a line is wider at its end than at its tip.
TEST_F(MapWayTest, ArrowsPointAlongTheWay) {
  way.Show({{LegKind::Lane, MiddleOf(2, 3), MiddleOf(6, 3)}});
  const double pixel = 15.0 / drawing.Cells.CellSize();

  EXPECT_EQ(ColorAt(4 - 4 * pixel, 3 + 2 * pixel), QColor(0xFFFFC040));
  EXPECT_NE(ColorAt(4 + 4 * pixel, 3 + 2 * pixel), QColor(0xFFFFC040));
}

TEST_F(MapWayTest, StopsAreDiscs) {
  way.Show({{LegKind::Fly, MiddleOf(2, 3), MiddleOf(6, 3)},
            {LegKind::Dock, MiddleOf(6, 3), MiddleOf(6, 3)},
            {LegKind::Fly, MiddleOf(6, 3), MiddleOf(9, 3)}});
  const double pixel = 15.0 / drawing.Cells.CellSize();

  for (const int stop : {2, 6, 9}) EXPECT_EQ(ColorAt(stop, 3 + 5 * pixel), QColor(0xFFFFC040));
}

TEST_F(MapWayTest, FollowsTheZoom) {
  way.Show({{LegKind::Lane, MiddleOf(2, 3), MiddleOf(6, 3)}});

  drawing.Cells = CellGeometry({0, 0, 720.0 * 15, 760.0 * 15}, {2, 2, 8, 8});
  way.Follow(drawing);

  EXPECT_EQ(ColorAt(3, 1), QColor(0xFFFFC040));
}

TEST_F(MapWayTest, IsPrintedInDarkColors) {
  way.Show({{LegKind::Lane, MiddleOf(2, 3), MiddleOf(6, 3)}});

  drawing.PrintMode = true;
  way.Follow(drawing);

  EXPECT_TRUE(way.isVisible());
  EXPECT_EQ(ColorAt(5, 3), QColor(0xFFB02000));
}

TEST_F(MapWayTest, LeavesThePanelFree) {
  drawing.Panel = PanelPlace::Right;
  drawing.PanelBox = {500.0 * 15, 0, 220.0 * 15, 760.0 * 15};
  way.Show({{LegKind::Lane, MiddleOf(2, 3), MiddleOf(6, 3)}});

  way.Follow(drawing);

  EXPECT_EQ(way.width(), 500);
}

TEST_F(MapWayTest, IsGoneOnceItIsHidden) {
  way.Show({{LegKind::Lane, MiddleOf(2, 3), MiddleOf(6, 3)}});

  way.Hide();
  way.Follow(drawing);

  EXPECT_FALSE(way.IsShown());
  EXPECT_FALSE(way.isVisible());
}

// The boxes and the search panel, which are children of the frame, too, stand above the way.
TEST_F(MapWayTest, OnlyTheMapIsBelowIt) {
  auto* box = new QWidget(&frame);
  auto& second = *new MapWay(frame);

  const QObjectList& stacked = frame.children();

  EXPECT_LT(stacked.indexOf(frame.viewport()), stacked.indexOf(&second));
  EXPECT_LT(stacked.indexOf(&second), stacked.indexOf(box));
}

}  // namespace
}  // namespace orrerix
