// SPDX-License-Identifier: MIT
#include "picture/still_changes.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

const QRectF kScene(0, 0, 400, 300);

class StillChangesTest : public ::testing::Test {
 protected:
  std::optional<QRegion> Changed() const { return changes.Since(before, kScene); }

  StillChanges changes;
  std::uint64_t before = changes.Version();
};

TEST_F(StillChangesTest, WithoutAChangeTheRegionIsEmpty) {
  EXPECT_NE(before, 0u);
  ASSERT_TRUE(Changed());
  EXPECT_TRUE(Changed()->isEmpty());
}

TEST_F(StillChangesTest, APlaceIsCoveredAndWhatIsFarFromItIsNot) {
  changes.Add({100, 50, 60, 20});

  EXPECT_NE(changes.Version(), before);
  ASSERT_TRUE(Changed());
  EXPECT_TRUE((QRegion(98, 48, 64, 24) - *Changed()).isEmpty());
  EXPECT_TRUE((*Changed() - QRegion(88, 38, 84, 44)).isEmpty());
}

TEST_F(StillChangesTest, OnlyWhatCameAfterTheVersionCounts) {
  changes.Add({100, 50, 60, 20});
  before = changes.Version();
  changes.Add({300, 200, 10, 10});

  ASSERT_TRUE(Changed());
  EXPECT_TRUE(Changed()->contains(QPoint(305, 205)));
  EXPECT_FALSE(Changed()->contains(QPoint(120, 60)));
}

TEST_F(StillChangesTest, APlaceOutsideOrWithoutRoomPaintsNothing) {
  changes.Add({500, 50, 60, 20});
  changes.Add({-60, -90, 30, 30});
  changes.Add(QRectF());

  ASSERT_TRUE(Changed());
  EXPECT_TRUE(Changed()->isEmpty());
}

TEST_F(StillChangesTest, ALineIsFollowedAcrossTheScene) {
  changes.AddLine({0, 0, 400, 300}, kScene);

  ASSERT_TRUE(Changed());
  for (int i = 0; i < 100; ++i) EXPECT_TRUE(Changed()->contains(QPoint(4 * i, 3 * i))) << i;
  EXPECT_FALSE(Changed()->contains(QPoint(200, 50)));
  EXPECT_FALSE(Changed()->contains(QPoint(100, 250)));
}

TEST_F(StillChangesTest, AfterAChangeOfAllNothingIsKnownOfThoseBefore) {
  changes.Add({100, 50, 60, 20});
  changes.AddAll();

  EXPECT_NE(changes.Version(), before);
  EXPECT_FALSE(Changed());
}

TEST_F(StillChangesTest, ManyPlacesAreAll) {
  for (int i = 0; i < 10000; ++i) changes.Add({100, 50, 60, 20});

  EXPECT_FALSE(Changed());
}

TEST_F(StillChangesTest, AVersionOfSomethingElseKnowsNothing) {
  EXPECT_FALSE(changes.Since(0, kScene));
  EXPECT_FALSE(changes.Since(before + 1, kScene));
}

}  // namespace
}  // namespace orrerix
