// SPDX-License-Identifier: MIT
#pragma once

#include "noise.h"
#include "palette.h"
#include "rgb.h"

namespace orrerix {

// How closely a picture looks at the gas.
struct GasView {
  double Frequency = 1;  // large folds for each cell
  int Octaves = 6;       // fineness
  double Cover = 0;      // -1 for nearly empty space to 1 for space full of gas
};

// The gas between the stars. It is one field over the whole grid: two pictures that look at it
// with the same view show the same folds, and meet where their cells meet.
class Nebula {
 public:
  explicit Nebula(std::uint64_t seed);

  // The light of the gas at a place in the colours of `palette`.
  Rgb Light(GridPoint place, const Palette& palette, const GasView& view) const;

  // The share of light from after that the dust lanes let through, 0 to 1.
  double Clear(GridPoint place, const GasView& view) const;

 private:
  double Density(Point3 point, const GasView& view) const;

  Noise body_;
  Noise threads_;
  Noise drift_;
  Noise dust_;
};

}  // namespace orrerix
