// SPDX-License-Identifier: MIT
#include "picture/form_font.h"

#include <QStringList>
#include <algorithm>
#include <cmath>

#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr double kTwipsPerPoint = 20;

QFont Sized(const QStringList& families, int points) {
  QFont font;
  font.setFamilies(families);
  const auto pixels = static_cast<int>(std::lround(Pixels(points * kTwipsPerPoint)));
  font.setPixelSize(std::max(1, pixels));
  return font;
}

}  // namespace

QFont FormFont(int points) {
  QFont font = Sized({"Liberation Sans", "Arial", "DejaVu Sans"}, points);
  font.setStyleHint(QFont::SansSerif);
  return font;
}

QFont FixedFont(int points) {
  QFont font = Sized({"DejaVu Sans Mono", "Liberation Mono", "Courier New"}, points);
  font.setStyleHint(QFont::Monospace);
  return font;
}

QFont CourierFont(int points) {
  QFont font = Sized({"Courier New", "Liberation Mono", "DejaVu Sans Mono"}, points);
  font.setStyleHint(QFont::Monospace);
  return font;
}

}  // namespace orrerix
