// SPDX-License-Identifier: MIT
#include "forms/station/price_colors.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

using Rgb = std::array<double, 3>;

double Linear(double part) {
  return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

Rgb LinearOf(const QColor& color) {
  return {Linear(color.redF()), Linear(color.greenF()), Linear(color.blueF())};
}

double Luminance(const Rgb& color) {
  return 0.2126 * color[0] + 0.7152 * color[1] + 0.0722 * color[2];
}

// The contrast of two colours as the guidelines for web content define it: 1 to 21.
double Contrast(const QColor& left, const QColor& right) {
  const double first = Luminance(LinearOf(left));
  const double second = Luminance(LinearOf(right));
  return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

TEST(PriceColors, LettersStandOutOnEveryGround) {
  for (int group = 0; group < kPriceGroups; ++group) {
    const PriceColors colors = PriceRowColors(group);
    EXPECT_GE(Contrast(colors.Ground, colors.Letters), 4.5) << group;
  }
  EXPECT_GE(Contrast(PriceHeadColors().Ground, PriceHeadColors().Letters), 4.5);
}

// Whoever sees no hue at all still sees the lightness.
TEST(PriceColors, GroupsDifferInLightnessAlone) {
  for (int left = 0; left < kPriceGroups; ++left) {
    for (int right = left + 1; right < kPriceGroups; ++right) {
      EXPECT_GE(Contrast(PriceRowColors(left).Ground, PriceRowColors(right).Ground), 1.5)
          << left << ", " << right;
    }
  }
}

TEST(PriceColors, GroundsAreCalm) {
  for (int group = 0; group < kPriceGroups; ++group) {
    EXPECT_LE(PriceRowColors(group).Ground.hsvSaturationF(), 0.8) << group;
  }
}

}  // namespace
}  // namespace orrerix
