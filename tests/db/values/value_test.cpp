// SPDX-License-Identifier: MIT
#include "db/values/value.h"

#include <string>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

struct ContentCase {
  Value Content;
  std::string_view Text;
  double Number;
};

class ValueOf : public ::testing::TestWithParam<ContentCase> {};

TEST_P(ValueOf, ItsContentAsTextAndNumber) {
  EXPECT_EQ(GetParam().Content.Text(), GetParam().Text);
  EXPECT_EQ(GetParam().Content.Number(), GetParam().Number);
}

INSTANTIATE_TEST_SUITE_P(
    Contents, ValueOf,
    ::testing::Values(ContentCase{Value(), "", 0}, ContentCase{5, "5", 5},
                      ContentCase{-2147483648LL, "-2147483648", -2147483648.0},
                      ContentCase{0.5, "0.5", 0.5}, ContentCase{-12.25, "-12.25", -12.25},
                      ContentCase{3.0, "3", 3}, ContentCase{1.0 / 3, "0.333333333333333", 1.0 / 3},
                      ContentCase{1e20, "100000000000000000000", 1e20},
                      ContentCase{"12 apples", "12 apples", 12}, ContentCase{"", "", 0},
                      ContentCase{std::string("x"), "x", 0}, ContentCase{true, "1", 1}));

TEST(Value, NullIsNoEmptyText) {
  EXPECT_TRUE(Value().IsNull());
  EXPECT_FALSE(Value("").IsNull());
  EXPECT_NE(Value(), Value(""));
  EXPECT_NE(Value(), Value(0));
}

TEST(Value, TellsWhatItHolds) {
  EXPECT_TRUE(Value("a").IsText());
  EXPECT_EQ(*Value("a").TextContent(), "a");
  EXPECT_EQ(*Value(5).Whole(), 5);
  EXPECT_EQ(*Value(0.5).Real(), 0.5);
  EXPECT_EQ(Value(5).TextContent(), nullptr);
  EXPECT_EQ(Value("5").Whole(), nullptr);
}

}  // namespace
}  // namespace orrerix
