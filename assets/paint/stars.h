// SPDX-License-Identifier: MIT
#pragma once

#include "canvas.h"
#include "noise.h"

namespace orrerix {

// A field of points of light over a whole canvas.
struct StarField {
  double Density = 6;  // stars for each 1000 natural pixels
  double Faintest = 0.05;
  double Brightest = 2;   // light of the middle pixel
  double Falloff = 1.25;  // the higher, the rarer are bright ones
  bool Wrapped = false;   // light that leaves at one side comes in at the opposite one
};

// Paints stars of all temperatures; few are bright.
void DrawStars(Canvas& canvas, const StarField& field, SplitMix64& dice);

// Paints `count` stars with a halo and a fine cross.
void DrawBeacons(Canvas& canvas, int count, double light, SplitMix64& dice);

// The colour of a star of a temperature from 0 (red) to 1 (blue).
Rgb StarColor(double temperature);

}  // namespace orrerix
