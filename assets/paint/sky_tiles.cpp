// SPDX-License-Identifier: MIT
#include "noise.h"
#include "seeds.h"
#include "space.h"
#include "stars.h"

namespace orrerix {

namespace {

constexpr int TileSide = 128;

// Two veils of noise with the period of the tile.
Rgb TileVeil(Spot at, const Noise& veil) {
  const double u = at.X / TileSide;
  const double v = at.Y / TileSide;
  const double blue = Smooth(-0.3, 0.9, veil.Fbm({u * 3, v * 3, 0.4}, 5));
  const double violet = Smooth(-0.1, 1.0, veil.Fbm({u * 3, v * 3, 7.7}, 5));
  return FromScreen(0x02040B) + FromScreen(0x122848) * (0.35 * blue) +
         FromScreen(0x2A1838) * (0.22 * violet);
}

Rgb EmptyVeil(Spot at, const Noise& veil) {
  const Point3 point{at.X / 170, at.Y / 170, 0.6};
  const double gas = Smooth(-0.2, 0.9, veil.Warped(point, 6, 0.9));
  const double thread = veil.Ridged(veil.Displaced(point * 1.4, 4, 0.8), 6);
  return FromScreen(0x02040A) + FromScreen(0x1C3150) * (0.30 * gas * (0.3 + thread));
}

}  // namespace

QImage PaintBackgroundTile(int scale) {
  Canvas canvas(TileSide, TileSide, scale);
  const Noise veil(TileSeed, 3);
  canvas.Fill([&veil](Spot at) { return TileVeil(at, veil); });
  SplitMix64 dice(TileSeed);
  DrawStars(canvas, {8, 0.03, 0.55, 1.3, true}, dice);
  return canvas.Expose();
}

QImage PaintEmptySpace(int scale) {
  Canvas canvas(462, 461, scale);
  const Noise veil(EmptySeed);
  canvas.Fill([&veil](Spot at) { return EmptyVeil(at, veil); });
  SplitMix64 dice(EmptySeed);
  DrawStars(canvas, {6, 0.03, 0.7, 1.35}, dice);
  return canvas.Expose();
}

}  // namespace orrerix
