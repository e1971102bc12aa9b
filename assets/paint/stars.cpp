// SPDX-License-Identifier: MIT
#include "stars.h"

#include <algorithm>

namespace orrerix {

namespace {

int Around(int index, int count) {
  return ((index % count) + count) % count;
}

// One point of light as the eye sees it: a small bell, narrower than a natural pixel.
void DrawPoint(Canvas& canvas, Spot spot, double width, Rgb light, bool wrapped) {
  const double s = canvas.Scale();
  const int reach = static_cast<int>(std::ceil(3 * width * s));
  const int cx = static_cast<int>(std::floor(spot.X * s));
  const int cy = static_cast<int>(std::floor(spot.Y * s));
  for (int y = cy - reach; y <= cy + reach; ++y) {
    for (int x = cx - reach; x <= cx + reach; ++x) {
      const bool outside = x < 0 || y < 0 || x >= canvas.Width() || y >= canvas.Height();
      if (outside && !wrapped) continue;
      const Spot middle = canvas.Middle(x, y);
      const double dx = (middle.X - spot.X) / width;
      const double dy = (middle.Y - spot.Y) / width;
      Rgb& pixel = canvas.At(Around(x, canvas.Width()), Around(y, canvas.Height()));
      pixel = pixel + light * std::exp(-0.5 * (dx * dx + dy * dy));
    }
  }
}

Spot AnySpot(const Canvas& canvas, SplitMix64& dice) {
  const double x = dice.Range(0, canvas.NaturalWidth());
  return {x, dice.Range(0, canvas.NaturalHeight())};
}

double CrossLight(double dx, double dy, double arm) {
  const double along = std::exp(-std::fabs(dx) / arm) * std::exp(-8 * dy * dy);
  const double across = std::exp(-std::fabs(dy) / arm) * std::exp(-8 * dx * dx);
  return along + across;
}

void DrawBeacon(Canvas& canvas, Spot spot, double light, Rgb color) {
  const double arm = 2.2 + 1.6 * light;
  const double reach = 7 * arm;
  const int s = canvas.Scale();
  const int left = std::max(0, static_cast<int>((spot.X - reach) * s));
  const int right = std::min(canvas.Width() - 1, static_cast<int>((spot.X + reach) * s));
  const int top = std::max(0, static_cast<int>((spot.Y - reach) * s));
  const int bottom = std::min(canvas.Height() - 1, static_cast<int>((spot.Y + reach) * s));
  for (int y = top; y <= bottom; ++y) {
    for (int x = left; x <= right; ++x) {
      const Spot middle = canvas.Middle(x, y);
      const double dx = middle.X - spot.X;
      const double dy = middle.Y - spot.Y;
      const double halo = 0.16 * light * std::exp(-std::hypot(dx, dy) / (1.1 * arm));
      const double cross = 0.30 * light * CrossLight(dx, dy, arm);
      canvas.At(x, y) = canvas.At(x, y) + color * (halo + cross);
    }
  }
  DrawPoint(canvas, spot, 0.75, Mix(color, {1, 1, 1}, 0.6) * (2.2 * light), false);
}

}  // namespace

Rgb StarColor(double temperature) {
  const Rgb red = FromScreen(0xFFB084);
  const Rgb white = FromScreen(0xFFF8EC);
  const Rgb blue = FromScreen(0xA4C4FF);
  return temperature < 0.5 ? Mix(red, white, temperature * 2)
                           : Mix(white, blue, temperature * 2 - 1);
}

void DrawStars(Canvas& canvas, const StarField& field, SplitMix64& dice) {
  const double area = canvas.NaturalWidth() * canvas.NaturalHeight();
  const int count = static_cast<int>(field.Density * area / 1000);
  for (int i = 0; i < count; ++i) {
    const Spot spot = AnySpot(canvas, dice);
    const double drawn = field.Faintest * std::pow(1 - dice.Uniform(), -1 / field.Falloff);
    const double light = std::min(field.Brightest, drawn);
    const Rgb color = StarColor(dice.Uniform());
    const double width = 0.42 + 0.22 * Smooth(0.3, 2.0, light);
    DrawPoint(canvas, spot, width, color * light, field.Wrapped);
  }
}

void DrawBeacons(Canvas& canvas, int count, double light, SplitMix64& dice) {
  for (int i = 0; i < count; ++i) {
    const Spot spot = AnySpot(canvas, dice);
    const double strength = light * dice.Range(0.4, 1.0);
    DrawBeacon(canvas, spot, strength, StarColor(dice.Uniform()));
  }
}

}  // namespace orrerix
