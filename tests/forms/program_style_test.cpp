// SPDX-License-Identifier: MIT
#include "forms/program_style.h"

#include <cmath>
#include <utility>

#include <gtest/gtest.h>

#include "forms/workbench/relations/attitude_look.h"

namespace orrerix {
namespace {

constexpr double kEasyToRead = 4.5;

// As the accessibility guidelines define it.
double LuminanceOf(const QColor& color) {
  const auto linear = [](double share) {
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

double ContrastOf(const QColor& one, const QColor& other) {
  const double a = LuminanceOf(one);
  const double b = LuminanceOf(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(Panels, AreEasyToReadInBothColors) {
  const std::vector<std::pair<QPalette::ColorRole, QPalette::ColorRole>> pairs = {
      {QPalette::WindowText, QPalette::Window},
      {QPalette::Text, QPalette::Base},
      {QPalette::Text, QPalette::AlternateBase},
      {QPalette::ButtonText, QPalette::Button},
      {QPalette::PlaceholderText, QPalette::Base},
      {QPalette::HighlightedText, QPalette::Highlight},
      {QPalette::ToolTipText, QPalette::ToolTipBase}};
  for (const QPalette& panels : {DarkPanels(), LightPanels()}) {
    for (const auto& [letters, ground] : pairs) {
      EXPECT_GE(ContrastOf(panels.color(letters), panels.color(ground)), kEasyToRead)
          << letters << " on " << ground;
    }
  }
}

TEST(Panels, AreLightOrDark) {
  EXPECT_TRUE(IsLight(LightPanels()));
  EXPECT_FALSE(IsLight(DarkPanels()));
}

TEST(AttitudeColors, AreEasyToRead) {
  for (const Attitude attitude :
       {Attitude::Hostile, Attitude::Unfriendly, Attitude::Friendly, Attitude::Allied}) {
    const AttitudeLook look = LookOf(attitude);
    EXPECT_GE(ContrastOf(look.Letters, look.Ground), kEasyToRead) << look.Symbol.toStdString();
  }
}

// Extremes differ from the shades beside them, and from each other, without colors.
TEST(AttitudeColors, DifferInLightness) {
  const auto light = [](Attitude attitude) { return LuminanceOf(LookOf(attitude).Ground); };

  EXPECT_GT(light(Attitude::Unfriendly), 2 * light(Attitude::Hostile));
  EXPECT_GT(light(Attitude::Friendly), 2 * light(Attitude::Allied));
  EXPECT_GT(light(Attitude::Hostile), 1.5 * light(Attitude::Allied));
}

}  // namespace
}  // namespace orrerix
