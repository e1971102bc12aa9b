// SPDX-License-Identifier: MIT
#include "tables/value_order.h"

#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

constexpr std::int64_t kBeyondReals = (std::int64_t{1} << 53) + 1;

TEST(SameValues, AreEqualNumbersOrTheSameText) {
  EXPECT_TRUE(IsSameValue(5, 5));
  EXPECT_TRUE(IsSameValue(5, 5.0));
  EXPECT_TRUE(IsSameValue("gun", "gun"));
  EXPECT_TRUE(IsSameValue(Null(), Null()));
}

TEST(SameValues, DifferFromOtherKindsAndOtherLetters) {
  EXPECT_FALSE(IsSameValue(5, "5"));
  EXPECT_FALSE(IsSameValue(Null(), ""));
  EXPECT_FALSE(IsSameValue(Null(), 0));
  EXPECT_FALSE(IsSameValue("gun", "Gun"));
  EXPECT_FALSE(IsSameValue(5, 5.5));
}

TEST(SameValues, WholeNumbersKeepAllTheirDigitsBesideRealOnes) {
  EXPECT_FALSE(IsSameValue(kBeyondReals, 9007199254740992.0));
  EXPECT_FALSE(IsSameValue(kBeyondReals, 1e300));
  EXPECT_FALSE(IsSameValue(kBeyondReals, -1e300));
}

TEST(TheOrderOfValues, IsNullThenNumbersThenTextsWithoutCase) {
  const std::vector<Value> ordered = {Null(), -2, -1.5, 0,       0.5,    3,
                                      20,     "", "_",  "alpha", "BETA", "ä"};
  for (std::size_t i = 0; i < ordered.size(); ++i) {
    for (std::size_t k = 0; k < ordered.size(); ++k) {
      EXPECT_EQ(IsBefore(ordered[i], ordered[k]), i < k) << i << " " << k;
    }
  }
  EXPECT_FALSE(IsBefore("gun", "GUN"));
  EXPECT_FALSE(IsBefore("GUN", "gun"));
  EXPECT_TRUE(IsBefore("10", "9"));
  EXPECT_FALSE(IsBefore(10, 9));
}

TEST(AMatch, DoesWithoutRegardToCase) {
  EXPECT_TRUE(Matches("Commodity_Gold", "commodity_gold"));
  EXPECT_FALSE(Matches("commodity_gold", "commodity"));
}

TEST(AMatch, OfANumberIsAnySpellingOfIt) {
  EXPECT_TRUE(Matches(100, "100"));
  EXPECT_TRUE(Matches(100.0, "100"));
  EXPECT_TRUE(Matches(100, "100.0"));
  EXPECT_TRUE(Matches(0.5, "0.5"));
  EXPECT_FALSE(Matches(100, "100 units"));
  EXPECT_FALSE(Matches(0, ""));
}

TEST(AMatch, OfAnEmptyTextIsNullOrEmpty) {
  EXPECT_TRUE(Matches(Null(), ""));
  EXPECT_TRUE(Matches("", ""));
  EXPECT_FALSE(Matches(" ", ""));
  EXPECT_FALSE(Matches(Null(), "0"));
}

}  // namespace
}  // namespace orrerix
