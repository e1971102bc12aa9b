// SPDX-License-Identifier: MIT
#include "palette.h"

#include <array>

namespace orrerix {

namespace {

struct Region {
  GridPoint Middle;
  double Reach;  // cells
  double Weight;
  Palette Colors;
};

Palette Colors(std::uint32_t veil, std::uint32_t gas, std::uint32_t heart, std::uint32_t accent,
               double bright) {
  return {FromScreen(veil), FromScreen(gas), FromScreen(heart), FromScreen(accent), bright};
}

// Nations first (middle, west, north, south-east), then the border worlds.
std::array<Region, 10> MakeRegions() {
  return {{
      {{8.9, 10.3}, 2.0, 1.00, Colors(0x10243F, 0x2C6FC4, 0x9CD2FF, 0x5A5FC8, 1.00)},
      {{3.2, 13.3}, 2.1, 1.00, Colors(0x0D2B2C, 0x1E9A86, 0xA6F4DC, 0x3F78B8, 1.00)},
      {{8.8, 6.0}, 2.0, 1.00, Colors(0x24173F, 0x8A4CC8, 0xE6B8FF, 0x3E5FD0, 1.00)},
      {{12.5, 13.4}, 2.0, 1.00, Colors(0x331A14, 0xC4622A, 0xFFD08A, 0xA8344E, 1.00)},
      {{4.2, 8.0}, 2.3, 0.55, Colors(0x1A2028, 0x6C7A94, 0xC4D4E6, 0x7A5A50, 0.62)},
      {{12.6, 7.4}, 2.4, 0.55, Colors(0x26150F, 0xA0483C, 0xFFB49A, 0x7A3A8C, 0.70)},
      {{16.2, 4.0}, 2.8, 0.55, Colors(0x16240F, 0x6E9440, 0xDCF0A0, 0x2C7A6A, 0.62)},
      {{8.0, 16.2}, 2.8, 0.55, Colors(0x241E10, 0x9A7C3C, 0xF0DCA4, 0x4C7C90, 0.62)},
      {{16.0, 12.5}, 2.6, 0.55, Colors(0x2A1020, 0xA03A6C, 0xFFAFCB, 0x6A4AA8, 0.62)},
      {{4.5, 2.8}, 3.2, 0.45, Colors(0x101A2A, 0x44648C, 0xAFCBE6, 0x5C4A8A, 0.50)},
  }};
}

double WeightOf(const Region& region, GridPoint place) {
  const double x = (place.Column - region.Middle.Column) / region.Reach;
  const double y = (place.Row - region.Middle.Row) / region.Reach;
  return region.Weight * std::exp(-0.5 * (x * x + y * y)) + 1e-6;
}

}  // namespace

Palette PaletteAt(GridPoint place) {
  static const std::array<Region, 10> Regions = MakeRegions();
  Palette sum{{}, {}, {}, {}, 0};
  double total = 0;
  double nearest = 0;
  for (const Region& region : Regions) {
    const double weight = WeightOf(region, place);
    sum.Veil = sum.Veil + region.Colors.Veil * weight;
    sum.Gas = sum.Gas + region.Colors.Gas * weight;
    sum.Heart = sum.Heart + region.Colors.Heart * weight;
    sum.Accent = sum.Accent + region.Colors.Accent * weight;
    sum.Bright += region.Colors.Bright * weight;
    total += weight;
    nearest = std::fmax(nearest, weight / region.Weight);
  }
  const double share = 1 / total;
  // Far from every region space is almost empty.
  const double bright = sum.Bright * share * (0.22 + 0.78 * Smooth(0.0, 0.75, nearest));
  return {sum.Veil * share, sum.Gas * share, sum.Heart * share, sum.Accent * share, bright};
}

}  // namespace orrerix
