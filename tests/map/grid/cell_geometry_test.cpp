// SPDX-License-Identifier: MIT
#include "map/grid/cell_geometry.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(CellGeometry, TheFrameLeavesRoomForTitleAndBorders) {
  EXPECT_EQ(FrameOn(24000, 18000), (TwipRect{50, 50, 23800, 17450}));
}

TEST(CellGeometry, AFormSmallerThanItsMarginsHasAnEmptyFrame) {
  const TwipRect frame = FrameOn(150, 500);
  const CellGeometry cells(frame, {});

  EXPECT_EQ(frame, (TwipRect{50, 50, 0, 0}));
  EXPECT_EQ(cells.CellSize(), 0);
  EXPECT_EQ(cells.CellBox(17, 18), (TwipRect{0, 0, 0, 0}));
}

TEST(CellGeometry, CellsAreSquareInAWideFrameAndInAHighOne) {
  // 19 rows in 1900 twips; 18 columns in 1800 twips.
  EXPECT_EQ(CellGeometry({0, 0, 9000, 1900}, {}).CellSize(), 100);
  EXPECT_EQ(CellGeometry({0, 0, 1800, 9000}, {}).CellSize(), 100);
}

TEST(CellGeometry, HalfATwipGoesToTheEvenNeighbour) {
  // 7001 / 2 = 3500.5 and 7003 / 2 = 3501.5
  EXPECT_EQ(CellGeometry({0, 0, 7001, 90000}, {0, 0, 1, 0}).CellSize(), 3500);
  EXPECT_EQ(CellGeometry({0, 0, 7003, 90000}, {0, 0, 1, 0}).CellSize(), 3502);
}

TEST(CellGeometry, TheVisibleRectangleStartsAtTheTopLeftCorner) {
  const CellGeometry cells({0, 0, 1000, 1000}, {3, 5, 4, 6});

  EXPECT_EQ(cells.CellBox(3, 5), (TwipRect{0, 0, 500, 500}));
  EXPECT_EQ(cells.CellBox(4, 6), (TwipRect{500, 500, 500, 500}));
}

TEST(CellGeometry, CellsBeyondTheRectangleLieBeyondTheFrame) {
  const CellGeometry cells({0, 0, 1000, 1000}, {3, 5, 4, 6});

  EXPECT_EQ(cells.CellLeft(0), -1500);
  EXPECT_EQ(cells.CellTop(18), 6500);
}

TEST(CellGeometry, APointIsItsCellPlusAFractionOfItKeptAsFloat) {
  const CellGeometry cells({0, 0, 900, 950}, {});  // cells of 50 twips

  EXPECT_EQ(cells.ScreenX({2, 3}, 0.1), 105.0F);
  EXPECT_EQ(cells.ScreenY({2, 3}, 1.0 / 3), static_cast<float>(150 + 50.0 / 3));
}

}  // namespace
}  // namespace orrerix
