// SPDX-License-Identifier: MIT
#include "map/layers/borders.h"

#include <gtest/gtest.h>

#include "support/fake_message_boxes.h"

namespace orrerix {
namespace {

TEST(Borders, CornersSitInTheCornersAndEdgesBetweenThem) {
  const ControlList pieces = BorderPieces(BorderSet::Map, 100, 200, 2100, 1200);

  ASSERT_EQ(pieces.size(), 8u);
  EXPECT_EQ(pieces[0].Place, (TwipRect{100, 200, 315, 315}));
  EXPECT_EQ(pieces[2].Place, (TwipRect{1785, 200, 315, 315}));
  EXPECT_EQ(pieces[5].Place, (TwipRect{100, 885, 315, 315}));
  EXPECT_EQ(pieces[7].Place, (TwipRect{1785, 885, 315, 315}));
  EXPECT_EQ(pieces[1].Place, (TwipRect{415, 200, 1370, 60}));  // 1785 - 415
  EXPECT_EQ(pieces[3].Place, (TwipRect{100, 515, 60, 370}));   // 885 - 200 - 315
  EXPECT_EQ(pieces[4].Place, (TwipRect{2040, 515, 60, 370}));  // 885 - 515
  EXPECT_EQ(pieces[6].Place, (TwipRect{415, 1140, 1370, 60}));
}

TEST(Borders, EachSetHasElementsOfItsOwn) {
  EXPECT_EQ(BorderPieces(BorderSet::Map, 0, 0, 1000, 1000).front().Index, 0);
  EXPECT_EQ(BorderPieces(BorderSet::InfoBox, 0, 0, 1000, 1000).front().Index, 8);
  EXPECT_EQ(BorderPieces(BorderSet::Options, 0, 0, 1000, 1000).front().Index, 16);
  EXPECT_EQ(BorderPieces(BorderSet::Tools, 0, 0, 1000, 1000).back().Index, 31);
}

TEST(Borders, EdgesOfANarrowRectangleVanish) {
  const ControlList pieces = BorderPieces(BorderSet::Map, 0, 0, 100, 100);

  EXPECT_EQ(pieces[1].Place.Width, 0);
  EXPECT_EQ(pieces[3].Place.Height, 0);
  EXPECT_EQ(pieces[4].Place.Height, 0);
  EXPECT_EQ(pieces[6].Place.Width, 0);
}

class SetRahmenTest : public ::testing::Test {
 protected:
  FakeMessageBoxes messages;
  ErrorLog log{messages, AppVersion{1, 0, 0}};
};

TEST_F(SetRahmenTest, SidesAreRoundedToTheEvenTwip) {
  const ControlList pieces = LayOutBorder(log, BorderSet::Map, 1000.5, 2001.5);

  EXPECT_EQ(pieces.at(7).Place.Right(), 1000);
  EXPECT_EQ(pieces.at(7).Place.Bottom(), 2002);
}

TEST_F(SetRahmenTest, ASideThatNoIntegerHoldsIsAFailureOfTheBorder) {
  const ControlList pieces = LayOutBorder(log, BorderSet::Map, 1e10, 2000);

  ASSERT_EQ(log.Failures().size(), 1u);
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.SetRahmen");
  EXPECT_EQ(log.Failures()[0].Info, "While calcing a border");
  EXPECT_EQ(log.Failures()[0].What.Number, 6);
  EXPECT_EQ(pieces.size(), 8u);
}

TEST_F(SetRahmenTest, OnCancelThereIsNoBorder) {
  messages.Answer = MessageAnswer::Cancel;

  EXPECT_TRUE(LayOutBorder(log, BorderSet::Map, 1e10, 2000).empty());
}

}  // namespace
}  // namespace orrerix
