// SPDX-License-Identifier: MIT
#include "check/model/numbers.h"

#include <cmath>

#include <gtest/gtest.h>

namespace orrerix::check {
namespace {

TEST(Numbers, AreSignDigitsPointAndExponent) {
  for (const char* text : {"0", "-1", "+1", "1.", ".5", "-0.5", "1e5", "1E+5", "2.5e-3"}) {
    EXPECT_TRUE(IsNumber(text)) << text;
  }
  for (const char* text : {"", "+", ".", "1.2.3", "1e", "1e+", "0x10", "1f", "inf", "nan", "1 2"}) {
    EXPECT_FALSE(IsNumber(text)) << text;
  }
}

TEST(Numbers, AreRead) {
  EXPECT_EQ(ParseNumber("+1.5"), 1.5);
  EXPECT_EQ(ParseNumber("-.5e1"), -5);
  EXPECT_EQ(ParseNumber("x"), std::nullopt);
  EXPECT_TRUE(std::isinf(ParseNumber("1e999").value()));
  EXPECT_EQ(ParseNumber("1e-999"), 0);
}

TEST(Numbers, LackCommasIfOnlyBlanksPartThem) {
  EXPECT_TRUE(IsNumbersWithoutCommas("0 -1"));
  EXPECT_TRUE(IsNumbersWithoutCommas("0\t 1  2"));
  EXPECT_FALSE(IsNumbersWithoutCommas("0"));
  EXPECT_FALSE(IsNumbersWithoutCommas("0 x"));
  EXPECT_FALSE(IsNumbersWithoutCommas(""));
}

TEST(Numbers, OfTextsAreWhole) {
  EXPECT_EQ(ParseTextNumber("65537"), 65537u);
  EXPECT_EQ(ParseTextNumber("-1"), 0xFFFFFFFFu);
  EXPECT_EQ(ParseTextNumber("9999999999"), 0xFFFFFFFFu);
  EXPECT_EQ(ParseTextNumber("1.5"), std::nullopt);
  EXPECT_EQ(ParseTextNumber(""), std::nullopt);
}

}  // namespace
}  // namespace orrerix::check
