// SPDX-License-Identifier: MIT
#include "space/labels.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

constexpr LabelBox kArea{0, 0, 200, 100};

std::optional<LabelBox> Place(const LabelWish& wish, std::vector<LabelBox> obstacles = {}) {
  return PlaceLabels({wish}, kArea, std::move(obstacles)).front();
}

TEST(Labels, StandAtTheRightOfTheirAnchor) {
  EXPECT_EQ(Place({50, 50, 5, 40, 10}), (LabelBox{55, 45, 40, 10}));
}

TEST(Labels, GoToTheLeftWhereTheRightIsTaken) {
  EXPECT_EQ(Place({50, 50, 5, 40, 10}, {{60, 48, 5, 5}}), (LabelBox{5, 45, 40, 10}));
}

TEST(Labels, StayInTheArea) {
  // To the right of 180 there is no room for 40, to the left of it there is.
  EXPECT_EQ(Place({180, 50, 5, 40, 10}), (LabelBox{135, 45, 40, 10}));
}

TEST(Labels, AreLeftOutWhereNoSpotIsFree) {
  EXPECT_EQ(Place({50, 50, 5, 40, 10}, {kArea}), std::nullopt);
  EXPECT_EQ(Place({50, 50, 5, 400, 10}), std::nullopt);
}

TEST(Labels, NeverCoverEachOther) {
  std::vector<LabelWish> wishes;
  for (int i = 0; i < 30; ++i) {
    wishes.push_back({40.0 + i * 4 % 60, 40.0 + i % 7, 3, 30, 8,
                      i % 3 == 0 ? LabelSpots::Over : LabelSpots::Beside});
  }

  const auto places = PlaceLabels(wishes, kArea, {});

  for (std::size_t i = 0; i < places.size(); ++i) {
    for (std::size_t k = 0; k < i; ++k) {
      const bool both = places[i] && places[k];
      EXPECT_FALSE(both && Overlap(*places[i], *places[k])) << i << " " << k;
    }
  }
}

TEST(Labels, OverTheirAnchorStepAside) {
  const LabelWish wish{100, 50, 0, 40, 10, LabelSpots::Over};

  EXPECT_EQ(Place(wish), (LabelBox{80, 45, 40, 10}));
  EXPECT_EQ(Place(wish, {{95, 49, 2, 2}}), (LabelBox{80, 55, 40, 10}));
}

TEST(Labels, AroundTheirAnchorGoAsFarAsTheyHaveTo) {
  const LabelWish wish{100, 50, 0, 40, 10, LabelSpots::Around};

  const auto place = Place(wish, {{60, 40, 80, 20}});

  ASSERT_TRUE(place);
  EXPECT_FALSE(Overlap(*place, {60, 40, 80, 20}));
}

TEST(Labels, TouchWithoutOverlapping) {
  EXPECT_FALSE(Overlap({0, 0, 10, 10}, {10, 0, 10, 10}));
  EXPECT_TRUE(Overlap({0, 0, 10, 10}, {9, 9, 10, 10}));
}

}  // namespace
}  // namespace orrerix
