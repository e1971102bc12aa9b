// SPDX-License-Identifier: MIT
#include "map/borders.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(Borders, CornersSitInTheCornersAndEdgesBetweenThem) {
  const ControlList pieces = SetRahmen(BorderSet::Map, 100, 200, 2100, 1200);

  ASSERT_EQ(pieces.size(), 8u);
  EXPECT_EQ(pieces[0].Place, (Box{100, 200, 315, 315}));
  EXPECT_EQ(pieces[2].Place, (Box{1785, 200, 315, 315}));
  EXPECT_EQ(pieces[5].Place, (Box{100, 885, 315, 315}));
  EXPECT_EQ(pieces[7].Place, (Box{1785, 885, 315, 315}));
  EXPECT_EQ(pieces[1].Place, (Box{415, 200, 1370, 60}));   // 1785 - 415
  EXPECT_EQ(pieces[3].Place, (Box{100, 515, 60, 370}));    // 885 - 200 - 315
  EXPECT_EQ(pieces[4].Place, (Box{2040, 515, 60, 370}));   // 885 - 515
  EXPECT_EQ(pieces[6].Place, (Box{415, 1140, 1370, 60}));
}

TEST(Borders, EachSetHasElementsOfItsOwn) {
  EXPECT_EQ(SetRahmen(BorderSet::Map, 0, 0, 1000, 1000).front().Index, 0);
  EXPECT_EQ(SetRahmen(BorderSet::InfoBox, 0, 0, 1000, 1000).front().Index, 8);
  EXPECT_EQ(SetRahmen(BorderSet::Options, 0, 0, 1000, 1000).front().Index, 16);
  EXPECT_EQ(SetRahmen(BorderSet::Tools, 0, 0, 1000, 1000).back().Index, 31);
}

TEST(Borders, EdgesOfANarrowRectangleVanish) {
  const ControlList pieces = SetRahmen(BorderSet::Map, 0, 0, 100, 100);

  EXPECT_EQ(pieces[1].Place.Width, 0);
  EXPECT_EQ(pieces[3].Place.Height, 0);
  EXPECT_EQ(pieces[4].Place.Height, 0);
  EXPECT_EQ(pieces[6].Place.Width, 0);
}

}  // namespace
}  // namespace orrerix
