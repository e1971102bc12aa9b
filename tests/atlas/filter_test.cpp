// SPDX-License-Identifier: MIT
#include "atlas/filter.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

bool Holds(const Value& value, std::string_view condition) {
  const auto filter = ParseFilter("x" + std::string(condition));
  EXPECT_TRUE(filter) << condition;
  return filter && Meets(value, *filter);
}

TEST(Filter, SplitsColumnComparisonAndText) {
  const auto filter = ParseFilter(" name !~ laser <= 3 ");

  ASSERT_TRUE(filter);
  EXPECT_EQ(filter->Column, "name");
  EXPECT_EQ(filter->How, Comparison::HoldsNot);
  EXPECT_EQ(filter->Text, "laser <= 3");
}

TEST(Filter, NeedsAColumnAComparisonAndForSizesANumber) {
  for (const char* text :
       {"", "name", "=x", "price>", "price>x", "price<=5k", "price!5", "price>nan"}) {
    EXPECT_FALSE(ParseFilter(text)) << text;
  }
}

TEST(Filter, ComparesTextsWithoutCase) {
  EXPECT_TRUE(Holds("Laser", "=laser"));
  EXPECT_FALSE(Holds("Lasers", "=laser"));
  EXPECT_TRUE(Holds("Lasers", "!=laser"));
  EXPECT_TRUE(Holds("Big Lasers", "~laser"));
  EXPECT_TRUE(Holds("\xC3\x84rger", "~\xC3\xA4r"));
  EXPECT_FALSE(Holds("Big Lasers", "!~laser"));
}

TEST(Filter, ComparesNumbersBySize) {
  EXPECT_TRUE(Holds(10, ">9.5"));
  EXPECT_FALSE(Holds(10, ">10"));
  EXPECT_TRUE(Holds(10, ">=10"));
  EXPECT_TRUE(Holds(10.5, "<11"));
  EXPECT_TRUE(Holds(10, "<=1e1"));
  EXPECT_TRUE(Holds(10, "=10.0"));
  EXPECT_TRUE(Holds(-1, "=-1"));
}

TEST(Filter, TakesWhatIsMissingForNeitherLessNorGreater) {
  EXPECT_FALSE(Holds({}, "<1"));
  EXPECT_FALSE(Holds({}, ">=0"));
  EXPECT_FALSE(Holds("5", ">1"));
  EXPECT_TRUE(Holds({}, "="));
  EXPECT_FALSE(Holds({}, "=0"));
  EXPECT_FALSE(Holds(0, "="));
  EXPECT_TRUE(Holds(0, "!="));
}

}  // namespace
}  // namespace orrerix
