// SPDX-License-Identifier: MIT
#include "nebula.h"
#include "seeds.h"
#include "space.h"
#include "stars.h"
#include "system_cells.h"

namespace orrerix {

namespace {

constexpr int UniverseWidth = 464;
constexpr int UniverseHeight = 467;

GridPoint PlaceOf(Spot at) {
  return {at.X / UniverseWidth * GridColumns, at.Y / UniverseHeight * GridRows};
}

// Gas gathers where systems are: the sum of a soft bell over each of them, up to 1.
double Settled(GridPoint place) {
  double sum = 0;
  for (int i = 0; i < SystemPictures; ++i) {
    const GridPoint system = MiddleOfSystem(i);
    const double x = place.Column - system.Column;
    const double y = place.Row - system.Row;
    sum += std::exp(-0.5 * (x * x + y * y) / 1.9);
  }
  return 1 - std::exp(-0.9 * sum);
}

void DrawGas(Canvas& canvas) {
  const Nebula nebula(GasSeed);
  const Nebula distant(GasSeed + 100);
  canvas.Fill([&](Spot at) {
    const GridPoint place = PlaceOf(at);
    const Palette palette = PaletteAt(place);
    const double settled = Settled(place);
    const GasView near{0.34, 7, settled * 1.3 - 0.65};
    const GasView far{0.13, 6, 0.1};
    const Rgb sky = FromScreen(0x03060E);
    return sky + nebula.Light(place, palette, near) * (0.14 + 0.86 * settled) +
           distant.Light(place, palette, far) * 0.10;
  });
}

// A faint crowd of stars that the gas regions are made of, beside the stars in front.
void DrawStarClouds(Canvas& canvas, SplitMix64& dice) {
  Canvas crowd(UniverseWidth, UniverseHeight, canvas.Scale());
  DrawStars(crowd, {34, 0.03, 0.30, 1.6}, dice);
  for (int y = 0; y < canvas.Height(); ++y) {
    for (int x = 0; x < canvas.Width(); ++x) {
      const GridPoint place = PlaceOf(canvas.Middle(x, y));
      const Rgb tint = Mix({1, 1, 1}, PaletteAt(place).Heart, 0.5);
      const double share = 0.15 + 0.55 * Settled(place);
      canvas.At(x, y) = canvas.At(x, y) + crowd.At(x, y) * tint * share;
    }
  }
}

}  // namespace

QImage PaintUniverse(int scale) {
  Canvas canvas(UniverseWidth, UniverseHeight, scale);
  SplitMix64 dice(UniverseSeed);
  DrawGas(canvas);
  DrawStarClouds(canvas, dice);
  DrawStars(canvas, {2.6, 0.06, 1.5, 1.15}, dice);
  DrawBeacons(canvas, 7, 0.45, dice);
  return canvas.Expose();
}

}  // namespace orrerix
