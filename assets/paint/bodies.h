// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

#include "canvas.h"
#include "noise.h"

namespace orrerix {

struct Sun {
  Spot Middle;
  double Radius = 7;  // of the disc, natural pixels
  double Glow = 1;    // strength of the light around it
  Rgb Color;
};

enum class PlanetKind { Rock, Ocean, Ice, Giant };

struct Planet {
  Spot Middle;
  double Radius = 12;
  Spot Light;  // where its light comes from
  PlanetKind Kind = PlanetKind::Rock;
  bool Ringed = false;
  std::uint64_t Seed = 0;
};

void DrawSun(Canvas& canvas, const Sun& sun);
void DrawPlanet(Canvas& canvas, const Planet& planet);

}  // namespace orrerix
