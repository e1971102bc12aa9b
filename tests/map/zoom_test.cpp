// SPDX-License-Identifier: MIT
#include "map/zoom.h"

#include <gtest/gtest.h>

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

TEST(ZoomStack, ItStartsWithTheWholeGridAndNothingBehindIt) {
  const ZoomStack stack;

  EXPECT_EQ(stack.Current(), ZoomRectangle{});
  EXPECT_EQ(stack.ZoomDepth(), 0u);
}

TEST(ZoomStack, APushedRectangleIsShownAndTheOldOneComesBack) {
  ZoomStack stack;

  EXPECT_EQ(stack.PushZoomStack(kSome), ZoomChange::Changed);
  EXPECT_EQ(stack.Current(), kSome);
  EXPECT_TRUE(stack.PopZoomStack());
  EXPECT_EQ(stack.Current(), ZoomRectangle{});
  EXPECT_EQ(stack.ZoomDepth(), 0u);
}

TEST(ZoomStack, PushingTheCurrentRectangleAtDepthOneOnlyBeeps) {
  ZoomStack stack;
  stack.PushZoomStack(kSome);

  EXPECT_EQ(stack.PushZoomStack(kSome), ZoomChange::Beep);
  EXPECT_EQ(stack.ZoomDepth(), 1u);
}

TEST(ZoomStack, PushingTheCurrentRectangleAtDepthZeroSavesIt) {
  ZoomStack stack;

  EXPECT_EQ(stack.PushZoomStack({}), ZoomChange::Changed);
  EXPECT_EQ(stack.ZoomDepth(), 1u);
  EXPECT_EQ(stack.Current(), ZoomRectangle{});
}

TEST(ZoomStack, PoppingAtDepthZeroDoesNothing) {
  ZoomStack stack;

  EXPECT_FALSE(stack.PopZoomStack());
  EXPECT_EQ(stack.Current(), ZoomRectangle{});
}

}  // namespace
}  // namespace orrerix
