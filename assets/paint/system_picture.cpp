// SPDX-License-Identifier: MIT
#include "nebula.h"
#include "seeds.h"
#include "space.h"
#include "stars.h"
#include "system_cells.h"

namespace orrerix {

namespace {

constexpr int SystemWidth = 467;
constexpr int SystemHeight = 469;

// Darkens towards the sides, so that pictures and empty cells meet quietly.
double InnerLight(Spot at) {
  const double side =
      std::fmin(std::fmin(at.X, SystemWidth - at.X), std::fmin(at.Y, SystemHeight - at.Y));
  return 0.30 + 0.70 * Smooth(-10, 90, side);
}

// The gas of the cell. No light stands in it: a bright place would pass for a sun.
void DrawGas(Canvas& canvas, int picture, SplitMix64& dice) {
  const Nebula nebula(GasSeed);
  const GridPoint middle = MiddleOfSystem(picture);
  const GasView view{dice.Range(0.95, 1.5), 7, dice.Range(-0.12, 0.34)};
  const GasView wide{0.45, 6, 0.45};
  canvas.Fill([&](Spot at) {
    const GridPoint place{middle.Column - 0.5 + at.X / SystemWidth,
                          middle.Row - 0.5 + at.Y / SystemHeight};
    const Palette palette = PaletteAt(place);
    const Rgb gas = nebula.Light(place, palette, view) * 0.72;
    const Rgb far = nebula.Light(place, palette, wide) * 0.42;
    return FromScreen(0x03060F) + (gas + far) * InnerLight(at);
  });
}

}  // namespace

// Sky alone: what stands in a system is drawn from the game's data.
QImage PaintSystem(int picture, int scale) {
  Canvas canvas(SystemWidth, SystemHeight, scale);
  SplitMix64 dice(SystemSeed + static_cast<std::uint64_t>(picture));
  DrawGas(canvas, picture, dice);
  DrawStars(canvas, {7, 0.05, 1.4, 1.25}, dice);
  return canvas.Expose();
}

}  // namespace orrerix
