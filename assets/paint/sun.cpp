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

}  // namespace orrerix
