// SPDX-License-Identifier: MIT
#include <array>
#include <vector>

#include "bodies.h"
#include "nebula.h"
#include "seeds.h"
#include "space.h"
#include "stars.h"
#include "system_cells.h"

namespace orrerix {

namespace {

constexpr int SystemWidth = 467;
constexpr int SystemHeight = 469;

// What stands in a system beside gas and stars.
struct SystemPlan {
  std::vector<Sun> Suns;
  std::vector<Belt> Belts;
  std::vector<Planet> Planets;
};

struct SunClass {
  std::uint32_t Color;
  double Radius;
  double Glow;
};

constexpr std::array<SunClass, 6> SunClasses{{{0xFFE0A0, 8, 0.80},
                                              {0xFFF4E0, 7, 0.85},
                                              {0xFFB868, 10, 0.75},
                                              {0xFF7C50, 14, 0.60},
                                              {0xB8D4FF, 7, 0.95},
                                              {0xE0ECFF, 4, 1.00}}};

Sun PlanSun(SplitMix64& dice) {
  const SunClass& kind = SunClasses.at(dice.Below(SunClasses.size()));
  const Spot middle{SystemWidth * dice.Range(0.42, 0.58), SystemHeight * dice.Range(0.42, 0.58)};
  return {middle, kind.Radius * dice.Range(0.85, 1.2), kind.Glow, FromScreen(kind.Color)};
}

// A small second sun close to the first.
Sun PlanCompanion(const Sun& first, SplitMix64& dice) {
  const double angle = dice.Uniform() * FullTurn;
  const double distance = dice.Range(34, 60);
  const Spot middle{first.Middle.X + distance * std::cos(angle),
                    first.Middle.Y + distance * std::sin(angle)};
  return {middle, first.Radius * 0.45, 0.7, StarColor(dice.Uniform())};
}

Belt PlanBelt(Spot middle, double radius, const Palette& palette, SplitMix64& dice) {
  Belt belt{middle, radius, dice.Range(9, 22), dice.Uniform(), 1, 0, {}};
  if (dice.Below(3) != 0) belt.Length = dice.Range(0.22, 0.55);
  belt.Rocks = static_cast<int>(radius * belt.Length * dice.Range(9, 16));
  const std::array<Rgb, 3> kinds{FromScreen(0xA08C74), FromScreen(0x9CB4C4), palette.Heart * 0.6};
  belt.Color = kinds.at(dice.Below(kinds.size()));
  return belt;
}

Planet PlanPlanet(Spot sun, double orbit, SplitMix64& dice) {
  const double angle = dice.Uniform() * FullTurn;
  Planet planet;
  planet.Middle = {sun.X + orbit * std::cos(angle), sun.Y + orbit * std::sin(angle)};
  planet.Light = sun;
  planet.Kind = static_cast<PlanetKind>(dice.Below(4));
  const bool giant = planet.Kind == PlanetKind::Giant;
  planet.Radius = giant ? dice.Range(15, 24) : dice.Range(6, 13);
  planet.Ringed = giant && dice.Below(2) == 0;
  planet.Seed = dice.Next();
  return planet;
}

// Suns in the middle, then belts and planets outwards, each on an orbit of its own.
SystemPlan PlanSystem(const Palette& palette, SplitMix64& dice) {
  SystemPlan plan;
  plan.Suns.push_back(PlanSun(dice));
  const Spot middle = plan.Suns.front().Middle;
  if (dice.Below(7) == 0) plan.Suns.push_back(PlanCompanion(plan.Suns.front(), dice));
  const int belts = dice.Below(3);
  for (int i = 0; i < belts; ++i) {
    plan.Belts.push_back(PlanBelt(middle, dice.Range(90 + 70 * i, 130 + 70 * i), palette, dice));
  }
  const int planets = 1 + dice.Below(3);
  for (int i = 0; i < planets; ++i) {
    plan.Planets.push_back(PlanPlanet(middle, dice.Range(62 + 52 * i, 96 + 52 * i), dice));
  }
  return plan;
}

// Darkens towards the sides, so that pictures and empty cells meet quietly.
double InnerLight(Spot at) {
  const double side =
      std::fmin(std::fmin(at.X, SystemWidth - at.X), std::fmin(at.Y, SystemHeight - at.Y));
  return 0.30 + 0.70 * Smooth(-10, 90, side);
}

// The gas of the cell, lit by the suns near by.
void DrawGas(Canvas& canvas, int picture, const SystemPlan& plan, SplitMix64& dice) {
  const Nebula nebula(GasSeed);
  const GridPoint middle = MiddleOfSystem(picture);
  const GasView view{dice.Range(0.95, 1.5), 7, dice.Range(-0.12, 0.34)};
  const GasView wide{0.45, 6, 0.45};
  const Sun& sun = plan.Suns.front();
  canvas.Fill([&](Spot at) {
    const GridPoint place{middle.Column - 0.5 + at.X / SystemWidth,
                          middle.Row - 0.5 + at.Y / SystemHeight};
    const Palette palette = PaletteAt(place);
    const double r = std::hypot(at.X - sun.Middle.X, at.Y - sun.Middle.Y) / 95;
    const Rgb lamp = Rgb{1, 1, 1} + sun.Color * (1.6 * sun.Glow / (1 + r * r));
    const Rgb gas = nebula.Light(place, palette, view) * lamp * 0.58;
    const Rgb far = nebula.Light(place, palette, wide) * 0.42;
    return FromScreen(0x03060F) + (gas + far) * InnerLight(at);
  });
}

}  // namespace

QImage PaintSystem(int picture, int scale) {
  Canvas canvas(SystemWidth, SystemHeight, scale);
  SplitMix64 dice(SystemSeed + static_cast<std::uint64_t>(picture));
  const SystemPlan plan = PlanSystem(PaletteAt(MiddleOfSystem(picture)), dice);
  DrawGas(canvas, picture, plan, dice);
  DrawStars(canvas, {7, 0.05, 1.4, 1.25}, dice);
  DrawBeacons(canvas, 1 + dice.Below(4), 0.5, dice);
  for (const Belt& belt : plan.Belts) DrawBelt(canvas, belt, dice);
  for (const Sun& sun : plan.Suns) DrawSun(canvas, sun);
  for (const Planet& planet : plan.Planets) DrawPlanet(canvas, planet);
  return canvas.Expose();
}

}  // namespace orrerix
