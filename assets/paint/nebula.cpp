// SPDX-License-Identifier: MIT
#include "nebula.h"

namespace orrerix {

namespace {

Point3 InNoise(GridPoint place, double frequency, double slice) {
  return {place.Column * frequency, place.Row * frequency, slice};
}

// Thin gas over a dark sky looks greyer than its palette; this gives it the hue back.
Rgb Vivid(Rgb light) {
  constexpr double chroma = 1.4;
  const double grey = 0.2126 * light.R + 0.7152 * light.G + 0.0722 * light.B;
  const auto channel = [grey](double value) {
    return std::fmax(0.0, grey + (value - grey) * chroma);
  };
  return {channel(light.R), channel(light.G), channel(light.B)};
}

}  // namespace

Nebula::Nebula(std::uint64_t seed)
    : body_(seed), threads_(seed + 1), drift_(seed + 2), dust_(seed + 3) {}

// Soft folds, with threads drawn out along them. Clouds are cut off at a level that wanders
// slowly, so that there are wide empty places too.
double Nebula::Density(Point3 point, const GasView& view) const {
  const Point3 folded = body_.Displaced(point, 4, 0.9);
  const double level = 0.10 - 0.30 * view.Cover - 0.45 * drift_.Fbm(point * 0.31, 2);
  const double soft = Smooth(level - 0.30, level + 0.75, body_.Fbm(folded, view.Octaves));
  const double thread = threads_.Ridged(folded * 1.3 + Point3{0, 0, 4.4}, view.Octaves - 1);
  return soft * (0.45 + 1.10 * Smooth(0.25, 0.95, thread));
}

Rgb Nebula::Light(GridPoint place, const Palette& palette, const GasView& view) const {
  const Point3 point = InNoise(place, view.Frequency, 0.37);
  const double here = Density(point, view);
  // Light comes from the upper left: a cloud is bright where it thins towards it.
  const double towards = Density(point + Point3{-0.05, -0.07, 0}, view);
  const double rim = std::fmax(0.0, here - towards) * 1.6;
  const double accent = Smooth(-0.15, 0.55, drift_.Warped(point * 0.8 + Point3{0, 0, 5.1}, 5, 0.8));
  const Rgb body = Mix(palette.Gas, palette.Accent, accent * 0.75);
  const double thick = here * here;
  const Rgb light = palette.Veil * (0.22 + 0.85 * here) + body * (0.42 * thick + 0.35 * rim) +
                    palette.Heart * (0.20 * thick * thick + 0.22 * rim * here);
  return Vivid(light) * (palette.Bright * Clear(place, view));
}

double Nebula::Clear(GridPoint place, const GasView& view) const {
  const Point3 point = InNoise(place, view.Frequency * 0.9, 2.9);
  const Point3 folded = dust_.Displaced(point, 4, 0.7);
  const double lane = Smooth(0.45, 0.92, dust_.Ridged(folded, view.Octaves - 1));
  const double patch = Smooth(-0.10, 0.45, dust_.Fbm(folded * 0.6 + Point3{0, 0, 8}, 4));
  return std::exp(-2.6 * lane * (0.25 + patch));
}

}  // namespace orrerix
