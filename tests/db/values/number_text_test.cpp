// SPDX-License-Identifier: MIT
#include "db/values/number_text.h"

#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();

struct ValCase {
  std::string Text;
  double Number;
};

class ValOf : public ::testing::TestWithParam<ValCase> {};

TEST_P(ValOf, AText) {
  EXPECT_EQ(Val(GetParam().Text), GetParam().Number);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ValOf,
    ::testing::Values(
        ValCase{"12", 12}, ValCase{"  12", 12}, ValCase{" \t 12", 12}, ValCase{"\r\n12", 0},
        ValCase{"-3.5", -3.5}, ValCase{"+5", 5}, ValCase{"--5", 0}, ValCase{"- 5", 0},
        ValCase{".5", 0.5}, ValCase{"5.", 5}, ValCase{".", 0}, ValCase{"-", 0}, ValCase{"", 0},
        ValCase{"   ", 0}, ValCase{"300 credits", 300}, ValCase{"1,5", 1}, ValCase{"1 2", 1},
        ValCase{"1.5.5", 1.5}, ValCase{"1e3", 1000}, ValCase{"1E+3", 1000}, ValCase{"25e-1", 2.5},
        ValCase{"1e", 1}, ValCase{"1e+", 1}, ValCase{"1ex", 1}, ValCase{"e5", 0}, ValCase{".e5", 0},
        ValCase{"1d3", 1}, ValCase{"0x10", 0}, ValCase{"&H10", 0}, ValCase{"inf", 0},
        ValCase{"nan", 0}, ValCase{"-0.25x", -0.25}, ValCase{"007", 7},
        // Whole numbers that a double holds exactly, and those beyond.
        ValCase{"999999999999999", 999999999999999.0},
        ValCase{"-999999999999999", -999999999999999.0},
        ValCase{"9007199254740993", 9007199254740992.0}, ValCase{"0000000000000000012", 12},
        ValCase{"18446744073709551617", 18446744073709551616.0},
        // Beyond all numbers, and below them.
        ValCase{"1e999", kInfinite}, ValCase{"-1e999", -kInfinite}, ValCase{"0.5e999", kInfinite},
        ValCase{"0001e400", kInfinite}, ValCase{"1e-999", 0}, ValCase{"0.001e-999", 0},
        ValCase{"0e999", 0}, ValCase{std::string(400, '9'), kInfinite},
        ValCase{std::string(400, '9') + "e-50", kInfinite},
        ValCase{"1e99999999999999999999", kInfinite}, ValCase{"1e-99999999999999999999", 0},
        ValCase{"0." + std::string(400, '0') + "1", 0}));

struct NumberCase {
  double Number;
  std::string_view Text;
};

class NumberTextOf : public ::testing::TestWithParam<NumberCase> {};

TEST_P(NumberTextOf, AReal) {
  EXPECT_EQ(NumberText(GetParam().Number), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Reals, NumberTextOf,
    ::testing::Values(NumberCase{0, "0"}, NumberCase{-0.0, "0"}, NumberCase{0.5, "0.5"},
                      NumberCase{-0.5, "-0.5"}, NumberCase{1, "1"}, NumberCase{100, "100"},
                      NumberCase{0.1 + 0.2, "0.3"}, NumberCase{1.0 / 3, "0.333333333333333"},
                      NumberCase{2.0 / 3, "0.666666666666667"},
                      NumberCase{123456.789, "123456.789"}, NumberCase{1e-7, "0.0000001"},
                      NumberCase{1e15, "1000000000000000"},
                      NumberCase{123456789012345678.0, "123456789012346000"},
                      NumberCase{-1e21, "-1000000000000000000000"}));

TEST(NumberText, WritesIntegersInFull) {
  EXPECT_EQ(NumberText(std::int64_t{-2147483648}), "-2147483648");
  EXPECT_EQ(NumberText(std::int64_t{0}), "0");
}

TEST(RoundToEven, TakesTheEvenNeighbourOfAHalf) {
  EXPECT_EQ(RoundToEven(0.5), 0);
  EXPECT_EQ(RoundToEven(1.5), 2);
  EXPECT_EQ(RoundToEven(2.5), 2);
  EXPECT_EQ(RoundToEven(-0.5), 0);
  EXPECT_EQ(RoundToEven(-1.5), -2);
  EXPECT_EQ(RoundToEven(2.51), 3);
}

TEST(ToInteger, KeepsToSixteenBits) {
  EXPECT_EQ(ToInteger(32767.4), 32767);
  EXPECT_EQ(ToInteger(32767.5), std::nullopt);
  EXPECT_EQ(ToInteger(-32768.5), -32768);
  EXPECT_EQ(ToInteger(-32768.6), std::nullopt);
  EXPECT_EQ(ToInteger(std::nan("")), std::nullopt);
}

TEST(ToLong, KeepsToThirtyTwoBits) {
  EXPECT_EQ(ToLong(2147483647.4), 2147483647);
  EXPECT_EQ(ToLong(2147483647.5), std::nullopt);
  EXPECT_EQ(ToLong(-2147483648.5), -2147483647 - 1);
  EXPECT_EQ(ToLong(kInfinite), std::nullopt);
}

TEST(FormatWhole, RoundsHalvesAwayFromZero) {
  EXPECT_EQ(FormatWhole(0.5), "1");
  EXPECT_EQ(FormatWhole(1.5), "2");
  EXPECT_EQ(FormatWhole(2.5), "3");
  EXPECT_EQ(FormatWhole(-0.5), "-1");
  EXPECT_EQ(FormatWhole(-2.5), "-3");
  EXPECT_EQ(FormatWhole(0.4), "0");
  EXPECT_EQ(FormatWhole(-0.4), "0");
  EXPECT_EQ(FormatWhole(99.5), "100");
  EXPECT_EQ(FormatWhole(1234567), "1234567");
}

TEST(FormatGrouped, GroupsThousands) {
  EXPECT_EQ(FormatGrouped(1234567.891, 2), "1,234,567.89");
  EXPECT_EQ(FormatGrouped(-1234.5, 0), "-1,235");
  EXPECT_EQ(FormatGrouped(999.995, 2), "1,000.00");
  EXPECT_EQ(FormatGrouped(999999.5, 0), "1,000,000");
  EXPECT_EQ(FormatGrouped(0, 2), "0.00");
  EXPECT_EQ(FormatGrouped(100, 0), "100");
}

TEST(FormatGrouped, RoundsFromTheDecimalText) {
  EXPECT_EQ(FormatGrouped(1.005, 2), "1.01");  // a little less than 1.005 in binary
  EXPECT_EQ(FormatGrouped(0.005, 2), "0.01");
  EXPECT_EQ(FormatGrouped(0.0049, 2), "0.00");
}

TEST(FormatGrouped, ZeroHasNoSign) {
  EXPECT_EQ(FormatGrouped(-0.004, 2), "0.00");
  EXPECT_EQ(FormatGrouped(-0.4, 0), "0");
}

TEST(FormatGrouped, TakesOtherSeparators) {
  EXPECT_EQ(FormatGrouped(1234567.891, 2, {".", ","}), "1.234.567,89");
  EXPECT_EQ(FormatGrouped(1234, 0, {"\u00A0", ","}), "1\u00A0234");
}

TEST(FormatGrouped, BearsWhatIsNoNumber) {
  EXPECT_EQ(FormatGrouped(std::nan(""), 2), "0.00");
  EXPECT_EQ(FormatWhole(kInfinite), "0");
  EXPECT_EQ(NumberText(kInfinite), "0");
}

}  // namespace
}  // namespace orrerix
