// SPDX-License-Identifier: MIT
#include <algorithm>

#include "bodies.h"

namespace orrerix {

namespace {

Rgb SunLight(const Sun& sun, Spot at, const Noise& flames) {
  const double dx = at.X - sun.Middle.X;
  const double dy = at.Y - sun.Middle.Y;
  const double r = std::hypot(dx, dy) / sun.Radius;
  const double direction = flames.Fbm(
      {1.6 * dx / (r * sun.Radius + 1e-9), 1.6 * dy / (r * sun.Radius + 1e-9), r * 0.12}, 4);
  const double corona = 0.85 * std::exp(-1.15 * (r - 1)) * (1 + 0.9 * direction);
  const double glow = 0.16 / (1 + std::pow(r / 3.2, 2.4));
  const double streak = 0.20 * std::exp(-std::fabs(dx) / (5.0 * sun.Radius)) *
                        std::exp(-std::pow(dy / (0.16 * sun.Radius), 2));
  // The disc is whitest in its middle.
  const double disc = 1 - Smooth(0.86, 1.06, r);
  const Rgb white = Mix({2.6, 2.6, 2.6}, sun.Color * 2.4, Smooth(0.1, 1.0, r));
  return sun.Color * ((std::min(corona, 1.1) + glow + streak) * sun.Glow) + white * disc;
}

}  // namespace

void DrawSun(Canvas& canvas, const Sun& sun) {
  const Noise flames(static_cast<std::uint64_t>(sun.Radius * 1000));
  for (int y = 0; y < canvas.Height(); ++y) {
    for (int x = 0; x < canvas.Width(); ++x) {
      Rgb& pixel = canvas.At(x, y);
      pixel = pixel + SunLight(sun, canvas.Middle(x, y), flames);
    }
  }
}

namespace {

void DrawRock(Canvas& canvas, Spot spot, double size, Rgb light) {
  const int s = canvas.Scale();
  const int reach = std::max(1, static_cast<int>(std::ceil(2 * size * s)));
  const int cx = static_cast<int>(spot.X * s);
  const int cy = static_cast<int>(spot.Y * s);
  for (int y = std::max(0, cy - reach); y <= std::min(canvas.Height() - 1, cy + reach); ++y) {
    for (int x = std::max(0, cx - reach); x <= std::min(canvas.Width() - 1, cx + reach); ++x) {
      const Spot middle = canvas.Middle(x, y);
      const double r = std::hypot(middle.X - spot.X, middle.Y - spot.Y) / size;
      canvas.At(x, y) = Mix(canvas.At(x, y), light, 0.9 * (1 - Smooth(0.6, 1.5, r)));
    }
  }
}

// The haze of dust that the rocks of a belt swim in.
void DrawHaze(Canvas& canvas, const Belt& belt, const Noise& lumps) {
  for (int y = 0; y < canvas.Height(); ++y) {
    for (int x = 0; x < canvas.Width(); ++x) {
      const Spot at = canvas.Middle(x, y);
      const double dx = at.X - belt.Middle.X;
      const double dy = at.Y - belt.Middle.Y;
      const double off = (std::hypot(dx, dy) - belt.Radius) / (belt.Width * 1.5);
      if (std::fabs(off) > 3) continue;
      double angle = std::atan2(dy, dx) / FullTurn - belt.From;
      angle -= std::floor(angle);
      const double end = std::min(angle, belt.Length - angle) / belt.Length;
      const double along = belt.Length >= 1 ? 1 : Smooth(0, 0.25, end);
      const double lump = 0.55 + 0.8 * lumps.Fbm({at.X * 0.035, at.Y * 0.035, 1.5}, 5);
      const double haze = 0.052 * std::exp(-0.5 * off * off) * along * std::max(0.0, lump);
      canvas.At(x, y) = canvas.At(x, y) + belt.Color * haze;
    }
  }
}

}  // namespace

void DrawBelt(Canvas& canvas, const Belt& belt, SplitMix64& dice) {
  const Noise lumps(dice.Next());
  DrawHaze(canvas, belt, lumps);
  for (int i = 0; i < belt.Rocks; ++i) {
    const double share = belt.Length >= 1 ? dice.Uniform() : 0.5 + 0.19 * dice.Bell();
    const double angle = (belt.From + belt.Length * share) * FullTurn;
    const double radius = belt.Radius + belt.Width * dice.Bell();
    const Spot spot{belt.Middle.X + radius * std::cos(angle),
                    belt.Middle.Y + radius * std::sin(angle)};
    const double size = 0.34 + 0.95 * std::pow(dice.Uniform(), 6);
    const double shade = dice.Range(0.10, 0.55);
    // Rocks stand in clumps, as the haze does.
    if (lumps.Fbm({spot.X * 0.035, spot.Y * 0.035, 1.5}, 4) < dice.Range(-0.7, 0.25)) continue;
    DrawRock(canvas, spot, size, Mix(belt.Color, {1, 1, 1}, 0.25) * shade);
  }
}

}  // namespace orrerix
