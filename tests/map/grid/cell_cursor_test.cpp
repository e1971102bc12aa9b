// SPDX-License-Identifier: MIT
#include "map/grid/cell_cursor.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

constexpr ZoomRectangle kVisible{4, 5, 6, 9};

TEST(CellCursor, IsHiddenUntilItIsMovedAndAppearsInTheMiddle) {
  CellCursor cursor;
  EXPECT_EQ(cursor.Cell(kVisible), std::nullopt);

  cursor.Move(1, 0, kVisible);

  EXPECT_EQ(cursor.Cell(kVisible), (MapCell{5, 7}));
}

TEST(CellCursor, NeverLeavesTheVisibleRectangle) {
  CellCursor cursor;
  cursor.Show(kVisible);

  for (int i = 0; i < 9; ++i) cursor.Move(1, 1, kVisible);
  EXPECT_EQ(cursor.Cell(kVisible), (MapCell{6, 9}));
  for (int i = 0; i < 9; ++i) cursor.Move(-1, -1, kVisible);
  EXPECT_EQ(cursor.Cell(kVisible), (MapCell{4, 5}));
}

TEST(CellCursor, AppearsAgainWhereItWas) {
  CellCursor cursor;
  cursor.Show(kVisible);
  cursor.Move(1, 0, kVisible);

  cursor.Hide();
  EXPECT_EQ(cursor.Cell(kVisible), std::nullopt);
  cursor.Move(0, 1, kVisible);

  EXPECT_EQ(cursor.Cell(kVisible), (MapCell{6, 7}));
}

TEST(CellCursor, OutsideTheRectangleItIsNotSeenAndStartsInTheMiddle) {
  CellCursor cursor;
  cursor.Show(kVisible);
  constexpr ZoomRectangle elsewhere{10, 10, 12, 12};

  EXPECT_EQ(cursor.Cell(elsewhere), std::nullopt);
  EXPECT_TRUE(cursor.Lines(CellGeometry({0, 0, 3000, 3000}, elsewhere), elsewhere).empty());
  cursor.Move(1, 0, elsewhere);

  EXPECT_EQ(cursor.Cell(elsewhere), (MapCell{11, 11}));
}

TEST(CellCursor, ItsLinesRunTwiceRoundTheCell) {
  CellCursor cursor;
  cursor.Show(kVisible);
  // Five rows on 5000 twips: cells of 1000. Cell 5, 7 begins at 1000, 2000.
  const ControlList lines = cursor.Lines(CellGeometry({0, 0, 9000, 5000}, kVisible), kVisible);

  ASSERT_EQ(lines.size(), 8U);
  EXPECT_EQ(lines[0].Ends, (LineEnds{1007.5F, 2007.5F, 1992.5F, 2007.5F}));
  EXPECT_EQ(lines[5].Ends, (LineEnds{1977.5F, 2022.5F, 1977.5F, 2977.5F}));
}

}  // namespace
}  // namespace orrerix
