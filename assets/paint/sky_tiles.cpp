// SPDX-License-Identifier: MIT
#include "noise.h"
#include "seeds.h"
#include "space.h"
#include "stars.h"

namespace orrerix {

namespace {

constexpr int TileSide = 128;
constexpr int TilePeriod = 6;  // folds of the veil along a side
constexpr int EmptyWidth = 462;
constexpr int EmptyHeight = 461;
constexpr int EmptyPeriod = 8;

// An even ground: the eye finds the period of the tile by whatever stands out in it, so nothing
// wide or bright may. The veil has no fold as large as a quarter of the tile.
Rgb TileVeil(Spot at, const Noise& veil) {
  const double u = at.X / TileSide;
  const double v = at.Y / TileSide;
  const double haze = veil.Fbm({u * TilePeriod, v * TilePeriod, 0.4}, 4);
  return FromScreen(0x050916) * (1 + 0.22 * haze);
}

// Cells without a system lie side by side in whole fields, so the filler is even too, and its
// opposite sides fit together.
Rgb EmptyVeil(Spot at, const Noise& veil) {
  const double u = at.X / EmptyWidth;
  const double v = at.Y / EmptyHeight;
  const Point3 point{u * EmptyPeriod, v * EmptyPeriod, 0.6};
  const double gas = veil.Fbm(veil.Displaced(point, 3, 0.5), 6);
  return FromScreen(0x060B1C) * (1 + 0.45 * gas);
}

}  // namespace

QImage PaintBackgroundTile(int scale) {
  Canvas canvas(TileSide, TileSide, scale);
  const Noise veil(TileSeed, TilePeriod);
  canvas.Fill([&veil](Spot at) { return TileVeil(at, veil); });
  SplitMix64 dice(TileSeed);
  DrawStars(canvas, {7, 0.015, 0.07, 1.6, true}, dice);
  return canvas.Expose();
}

QImage PaintEmptySpace(int scale) {
  Canvas canvas(EmptyWidth, EmptyHeight, scale);
  const Noise veil(EmptySeed, EmptyPeriod);
  canvas.Fill([&veil](Spot at) { return EmptyVeil(at, veil); });
  SplitMix64 dice(EmptySeed);
  DrawStars(canvas, {6, 0.02, 0.3, 1.5, true}, dice);
  return canvas.Expose();
}

}  // namespace orrerix
