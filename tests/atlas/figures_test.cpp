// SPDX-License-Identifier: MIT
#include "atlas/figures.h"

#include <limits>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(Figures, AreMissingWhereAPartIs) {
  const Figure none;
  EXPECT_EQ(Sum(1.0, none), none);
  EXPECT_EQ(Difference(none, 1.0), none);
  EXPECT_EQ(Product(none, none), none);
  EXPECT_EQ(Quotient(1.0, none), none);
  EXPECT_EQ(Quotient(1.0, 0.0), none);
  EXPECT_EQ(Sum(1.0, 2.0), Figure(3));
  EXPECT_EQ(Difference(1.0, 2.0), Figure(-1));
  EXPECT_EQ(Product(3.0, 2.0), Figure(6));
  EXPECT_EQ(Quotient(3.0, 2.0), Figure(1.5));
}

TEST(Figures, AreReadFromTheStartOfATextThatHasOne) {
  EXPECT_EQ(ParseFigure("12.5, 7"), Figure(12.5));
  EXPECT_EQ(ParseFigure(" -.5"), Figure(-0.5));
  EXPECT_EQ(ParseFigure("0"), Figure(0));
  for (const char* text : {"", "  ", "x1", "-", ".", "-x"}) {
    EXPECT_EQ(ParseFigure(text), std::nullopt) << text;
  }
}

TEST(Figures, AreShownWithFourDecimalsOrAsWholeNumbers) {
  EXPECT_EQ(FigureValue(1.0 / 3), Value(0.3333));
  EXPECT_EQ(FigureValue(2.00001), Value(2));
  EXPECT_EQ(FigureValue(std::nullopt), Value());
  EXPECT_EQ(FigureValue(std::numeric_limits<double>::infinity()), Value());
  EXPECT_EQ(FigureValue(1e300), Value(1e300));
}

TEST(Figures, OfZeroMayStandForNone) {
  EXPECT_EQ(UnlessZero(0.0), std::nullopt);
  EXPECT_EQ(UnlessZero(2.0), Figure(2));
}

TEST(Texts, ThatAreEmptyAreNull) {
  EXPECT_EQ(TextValueOf(""), Value());
  EXPECT_EQ(TextValueOf("x"), Value("x"));
  EXPECT_TRUE(IsTrue(" True"));
  EXPECT_FALSE(IsTrue("yes"));
}

}  // namespace
}  // namespace orrerix
