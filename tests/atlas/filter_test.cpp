// SPDX-License-Identifier: MIT
#include "atlas/filter.h"

#include <algorithm>

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

bool FieldHolds(const Value& value, std::string_view text) {
  const auto filters = ParseColumnFilter(text, true);
  EXPECT_TRUE(filters) << text;
  if (!filters) return false;
  return std::all_of(filters->begin(), filters->end(),
                     [&value](const Filter& filter) { return Meets(value, filter); });
}

TEST(ColumnFilter, TakesRangesWithBothTheirEnds) {
  for (const char* range : {"10..50", " 10 .. 50 ", "50..10"}) {
    EXPECT_TRUE(FieldHolds(10, range)) << range;
    EXPECT_TRUE(FieldHolds(50.0, range)) << range;
    EXPECT_FALSE(FieldHolds(9.99, range)) << range;
    EXPECT_FALSE(FieldHolds(51, range)) << range;
    EXPECT_FALSE(FieldHolds(Null(), range)) << range;
  }
  EXPECT_TRUE(FieldHolds(-3, "-5..-2.5"));
  EXPECT_TRUE(FieldHolds(0.75, ".5...8"));
}

TEST(ColumnFilter, TakesRangesThatAreOpen) {
  EXPECT_TRUE(FieldHolds(1000, "10.."));
  EXPECT_FALSE(FieldHolds(9, "10.."));
  EXPECT_TRUE(FieldHolds(-1000, "..10"));
  EXPECT_FALSE(FieldHolds(11, "..10"));
}

TEST(ColumnFilter, ComparesNumbers) {
  EXPECT_TRUE(FieldHolds(101, ">100"));
  EXPECT_FALSE(FieldHolds(100, "> 100"));
  EXPECT_TRUE(FieldHolds(100, ">=100"));
  EXPECT_TRUE(FieldHolds(4.9, "<5"));
  EXPECT_TRUE(FieldHolds(5, "<=5"));
  EXPECT_TRUE(FieldHolds(3, "=3"));
  EXPECT_TRUE(FieldHolds(3, "3.0"));
  EXPECT_FALSE(FieldHolds(30, "3"));
  EXPECT_TRUE(FieldHolds(4, "!=3"));
}

TEST(ColumnFilter, RefusesWhatIsNoNumberWhereNumbersAre) {
  for (const char* text : {"laser", ">", "10..x", "x..10", "..", "1..2..3", "=", "~3", "10 20"}) {
    EXPECT_FALSE(ParseColumnFilter(text, true)) << text;
  }
}

TEST(ColumnFilter, TakesAnyTextForAPartWhereTextsAre) {
  const auto filters = ParseColumnFilter(" LAS ", false);

  ASSERT_TRUE(filters);
  ASSERT_EQ(filters->size(), 1u);
  EXPECT_TRUE(Meets("Big Laser", filters->front()));
  EXPECT_FALSE(Meets("Gun", filters->front()));
}

TEST(ColumnFilter, IsNoConditionWhileItIsEmpty) {
  EXPECT_TRUE(ParseColumnFilter("  ", true)->empty());
  EXPECT_TRUE(ParseColumnFilter("", false)->empty());
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
