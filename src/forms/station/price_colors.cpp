// SPDX-License-Identifier: MIT
#include "forms/station/price_colors.h"

#include <array>

namespace orrerix {

PriceColors PriceRowColors(int group) {
  // Dark slate, ochre, and a steel blue with dark letters.
  static const std::array<PriceColors, kPriceGroups> colors = {
      PriceColors{QColor(0xFF262C4A), QColor(0xFFE4ECFF)},
      PriceColors{QColor(0xFF6E541A), QColor(0xFFFFF4DC)},
      PriceColors{QColor(0xFF6A92B4), QColor(0xFF06122A)}};
  return colors[static_cast<std::size_t>(group)];
}

PriceColors PriceHeadColors() {
  return {QColor(0xFF0A1034), QColor(0xFFFFE080)};
}

}  // namespace orrerix
