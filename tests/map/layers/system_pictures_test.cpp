// SPDX-License-Identifier: MIT
#include "map/layers/system_pictures.h"

#include <set>
#include <utility>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(SystemPictures, TheColumnIsBeforeTheCommaAndTheRowInTheLastTwoCharacters) {
  EXPECT_EQ(CellOfTag("15,12"), (MapCell{16, 14}));
  EXPECT_EQ(CellOfTag("7, 4"), (MapCell{8, 6}));
  EXPECT_EQ(CellOfTag(" 7,08"), (MapCell{8, 10}));
  EXPECT_EQ(CellOfTag("0,10"), (MapCell{1, 12}));
}

TEST(SystemPictures, EveryPictureHasACellOfItsOwnInTheGrid) {
  std::set<std::pair<int, int>> cells;

  for (int i = 0; i < kSystemPictures; ++i) {
    const MapCell cell = CellOfTag(SystemPictureTag(i));
    EXPECT_GE(cell.X, 0);
    EXPECT_LE(cell.X, MapMaxX);
    EXPECT_LE(cell.Y, MapMaxY);
    cells.insert({cell.X, cell.Y});
  }

  EXPECT_EQ(cells.size(), 47u);
}

}  // namespace
}  // namespace orrerix
