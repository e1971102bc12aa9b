// SPDX-License-Identifier: MIT
#include "map/grid/zoom.h"

#include <gtest/gtest.h>

#include "support/fake_message_boxes.h"

namespace orrerix {
namespace {

constexpr ZoomRectangle kSome{3, 4, 5, 6};

TEST(ZoomRectangle, OnlyTheWholeGridIsNotZoomed) {
  EXPECT_FALSE(ZoomRectangle{}.IsZoomed());
  EXPECT_TRUE((ZoomRectangle{0, 0, 17, 17}).IsZoomed());
  EXPECT_TRUE((ZoomRectangle{1, 0, 17, 18}).IsZoomed());
}

TEST(ZoomRectangle, SidesCountAsInside) {
  EXPECT_EQ(kSome.Columns(), 3);
  EXPECT_EQ(kSome.Rows(), 3);
  EXPECT_TRUE(kSome.Holds(3, 4));
  EXPECT_TRUE(kSome.Holds(5, 6));
  EXPECT_FALSE(kSome.Holds(6, 6));
}

TEST(ZoomRectangle, SwappedEndsAndSidesBeyondTheGridAreNotValid) {
  EXPECT_TRUE(kSome.IsValid());
  EXPECT_FALSE((ZoomRectangle{5, 4, 3, 6}).IsValid());
  EXPECT_FALSE((ZoomRectangle{0, 0, 18, 18}).IsValid());
  EXPECT_FALSE((ZoomRectangle{-1, 0, 17, 18}).IsValid());
}

class ZoomStackTest : public ::testing::Test {
 protected:
  FakeMessageBoxes messages;
  ErrorLog log{messages, AppVersion{1, 0, 0}};
  ZoomStack stack;
};

TEST_F(ZoomStackTest, ItStartsWithTheWholeGridAndNothingBehindIt) {
  EXPECT_EQ(stack.Current(), ZoomRectangle{});
  EXPECT_EQ(stack.ZoomDepth(), 0u);
}

TEST_F(ZoomStackTest, APushedRectangleIsShownAndTheOldOneComesBack) {
  EXPECT_EQ(stack.PushZoomStack(log, kSome), ZoomChange::Changed);
  EXPECT_EQ(stack.Current(), kSome);
  EXPECT_TRUE(stack.PopZoomStack(log));
  EXPECT_EQ(stack.Current(), ZoomRectangle{});
  EXPECT_EQ(stack.ZoomDepth(), 0u);
}

TEST_F(ZoomStackTest, PushingTheCurrentRectangleAtDepthOneOnlyBeeps) {
  stack.PushZoomStack(log, kSome);

  EXPECT_EQ(stack.PushZoomStack(log, kSome), ZoomChange::Beep);
  EXPECT_EQ(stack.ZoomDepth(), 1u);
}

TEST_F(ZoomStackTest, PushingTheCurrentRectangleAtDepthZeroSavesIt) {
  EXPECT_EQ(stack.PushZoomStack(log, {}), ZoomChange::Changed);
  EXPECT_EQ(stack.ZoomDepth(), 1u);
  EXPECT_EQ(stack.Current(), ZoomRectangle{});
}

TEST_F(ZoomStackTest, PoppingAtDepthZeroDoesNothing) {
  EXPECT_FALSE(stack.PopZoomStack(log));
  EXPECT_EQ(stack.Current(), ZoomRectangle{});
}

// One rectangle after the other, none the same as the one before.
ZoomRectangle Cell(int n) {
  return {n % 2, 0, n % 2, 0};
}

class FullZoomStack : public ZoomStackTest {
 protected:
  FullZoomStack() {
    for (int n = 0; n < 32767; ++n) stack.PushZoomStack(log, Cell(n));
  }
};

TEST_F(FullZoomStack, OneStepDeeperOverflowsAndOnOkReplacesTheLastOne) {
  EXPECT_EQ(stack.ZoomDepth(), 32767u);
  ASSERT_TRUE(log.Failures().empty());

  EXPECT_EQ(stack.PushZoomStack(log, kSome), ZoomChange::Changed);

  ASSERT_EQ(log.Failures().size(), 1u);
  EXPECT_EQ(log.Failures()[0].Source, "OrrerixMain.PushZoomStack");
  EXPECT_EQ(log.Failures()[0].What.Number, 6);
  EXPECT_EQ(stack.Current(), kSome);
  EXPECT_EQ(stack.ZoomDepth(), 32767u);
  EXPECT_TRUE(stack.PopZoomStack(log));
  EXPECT_EQ(stack.Current(), Cell(32766));
}

TEST_F(FullZoomStack, OnCancelTheRectangleStays) {
  messages.Answer = MessageAnswer::Cancel;

  EXPECT_EQ(stack.PushZoomStack(log, kSome), ZoomChange::None);

  EXPECT_EQ(stack.Current(), Cell(32766));
}

}  // namespace
}  // namespace orrerix
