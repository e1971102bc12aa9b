// SPDX-License-Identifier: MIT
#include <algorithm>

#include "bodies.h"

namespace orrerix {

namespace {

struct Ground {
  Rgb Low;
  Rgb High;
  Rgb Air;
};

Ground GroundOf(const Planet& planet) {
  SplitMix64 dice(planet.Seed);
  const bool first = dice.Below(2) == 0;
  switch (planet.Kind) {
    case PlanetKind::Ocean:
      return {FromScreen(0x163E6E), FromScreen(first ? 0x5E8A4A : 0xA08A58), FromScreen(0x8CC4FF)};
    case PlanetKind::Ice:
      return {FromScreen(0x86A8BE), FromScreen(0xE6F2F6), FromScreen(0xBCE0F4)};
    case PlanetKind::Giant:
      return {FromScreen(first ? 0xA87848 : 0x5A7C9C), FromScreen(first ? 0xE6CFA4 : 0xC4DCE0),
              FromScreen(first ? 0xE0B080 : 0xA0D0E8)};
    case PlanetKind::Rock:
      break;
  }
  return {FromScreen(first ? 0x4C3A30 : 0x5C3020), FromScreen(first ? 0x9A8874 : 0xC07848),
          FromScreen(0xB09078)};
}

// A point of the unit sphere, and how the planet looks there.
Rgb Surface(const Planet& planet, const Ground& ground, Point3 p, const Noise& relief) {
  if (planet.Kind == PlanetKind::Giant) {
    const Point3 tilted{p.X * 0.9 + p.Y * 0.35, p.Y * 0.94 - p.X * 0.34, p.Z};
    const double swirl = relief.Warped({tilted.X * 1.2, tilted.Y * 6, tilted.Z * 1.2}, 4, 0.7);
    const double band = 0.5 + 0.5 * std::sin(tilted.Y * 11 + swirl * 2.6);
    return Mix(ground.Low, ground.High, band);
  }
  const double height = relief.Warped(p * 1.9 + Point3{3, 5, 7}, 6, 0.8);
  if (planet.Kind == PlanetKind::Ocean) {
    const double cloud = Smooth(0.05, 0.5, relief.Warped(p * 2.6 + Point3{9, 1, 2}, 5, 1.0));
    const double cap = Smooth(0.80, 0.90, std::fabs(p.Y) + 0.12 * height);
    const Rgb land = Mix(ground.Low, ground.High, Smooth(0.02, 0.12, height));
    return Mix(land, {0.8, 0.85, 0.9}, std::max(cap, cloud * 0.75));
  }
  return Mix(ground.Low, ground.High, Smooth(-0.35, 0.40, height));
}

// The direction of the light, leaning a little towards the beholder so that more than half of
// the disc is lit.
Point3 LightDirection(const Planet& planet) {
  const double dx = planet.Light.X - planet.Middle.X;
  const double dy = planet.Light.Y - planet.Middle.Y;
  const double flat = std::hypot(dx, dy) + 1e-9;
  return {0.86 * dx / flat, 0.86 * dy / flat, 0.51};
}

double Lit(Point3 p, Point3 light) {
  return p.X * light.X + p.Y * light.Y + p.Z * light.Z;
}

// Covers the disc, then lays the air around its lit side.
void DrawGlobePixel(Rgb& pixel, const Planet& planet, const Ground& ground, Spot at, double edge,
                    const Noise& relief) {
  const Point3 light = LightDirection(planet);
  const double x = (at.X - planet.Middle.X) / planet.Radius;
  const double y = (at.Y - planet.Middle.Y) / planet.Radius;
  const double r = std::hypot(x, y);
  const double inside = std::min(r, 0.999);
  const double k = r > 0 ? inside / r : 1;
  const Point3 p{x * k, y * k, std::sqrt(1 - inside * inside)};
  const double lit = Smooth(-0.12, 1.05, Lit(p, light)) * 1.05;
  const double limb = std::pow(1 - p.Z, 2.5);
  const Rgb surface = Surface(planet, ground, p, relief) * lit + ground.Air * (0.35 * limb * lit);
  pixel = Mix(pixel, surface * 0.75, 1 - Smooth(1 - edge, 1 + edge, r));
  const double air = std::exp(-std::max(0.0, r - 1) * 11) * Smooth(1 - edge, 1 + edge, r);
  pixel = pixel + ground.Air * (0.16 * air * lit);
}

// A flat ring, seen from above at a slant; the half after the globe is hidden by it.
double RingAt(const Planet& planet, Spot at) {
  const double dx = (at.X - planet.Middle.X) / planet.Radius;
  const double dy = (at.Y - planet.Middle.Y) / planet.Radius;
  const double x = dx * 0.94 + dy * 0.34;
  const double y = dy * 0.94 - dx * 0.34;
  const double r = std::hypot(x, y * 3.4);
  if (y < 0 && std::hypot(dx, dy) < 1) return 0;
  const double band = Smooth(1.35, 1.45, r) * (1 - Smooth(2.10, 2.25, r));
  const double gap = 1 - 0.8 * Smooth(0.06, 0.0, std::fabs(r - 1.83));
  return band * gap * (0.6 + 0.4 * std::sin(r * 34));
}

}  // namespace

void DrawPlanet(Canvas& canvas, const Planet& planet) {
  const Noise relief(planet.Seed);
  const Ground ground = GroundOf(planet);
  const double reach = planet.Radius * 2.4;
  const double edge = 0.7 / (planet.Radius * canvas.Scale());
  for (int y = 0; y < canvas.Height(); ++y) {
    for (int x = 0; x < canvas.Width(); ++x) {
      const Spot at = canvas.Middle(x, y);
      const double dx = at.X - planet.Middle.X;
      const double dy = at.Y - planet.Middle.Y;
      if (std::hypot(dx, dy) > reach) continue;
      Rgb& pixel = canvas.At(x, y);
      DrawGlobePixel(pixel, planet, ground, at, edge, relief);
      if (planet.Ringed) pixel = Mix(pixel, ground.High * 0.55, 0.75 * RingAt(planet, at));
    }
  }
}

}  // namespace orrerix
