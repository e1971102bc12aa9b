// SPDX-License-Identifier: MIT
#pragma once

#include "canvas.h"
#include "rgb.h"

namespace orrerix {

// A place on the star map's grid of 18 columns and 19 rows: 8.5, 3.5 is the middle of column 8,
// row 3.
struct GridPoint {
  double Column = 0;
  double Row = 0;
};

constexpr int GridColumns = 18;
constexpr int GridRows = 19;

// The colours of space at one place.
struct Palette {
  Rgb Veil;           // thin, far gas
  Rgb Gas;            // the body of a cloud
  Rgb Heart;          // where a cloud is thickest or lit
  Rgb Accent;         // a second gas that drifts through the first
  double Bright = 1;  // how much gas there is to be seen
};

// Each of the four nations has its hue, the border worlds lie dim between them; the hues run
// into each other without a line.
Palette PaletteAt(GridPoint place);

}  // namespace orrerix
