// SPDX-License-Identifier: MIT
// The game's grid of sectors and the scale of one system.
#pragma once

#include <string>
#include <vector>

#include "derived/system_grid.h"

namespace orrerix {

inline constexpr int kSectors = 8;

// Where a column (row) of sectors begins, fraction of the system's square, from 0 to kSectors: at
// that the last one ends. As texts name sectors, the columns are shifted by a part of a sector, and
// the rows by another one.
double SectorLeft(int column);
double SectorTop(int row);

// "A" to "H", "1" to "8".
std::string ColumnName(int column);
std::string RowName(int row);

// The sector at a point, "D4"; empty outside of them.
std::string SectorAt(CellFraction point);

// A bar that is a round number of units long.
struct ScaleBar {
  double Units = 0;   // 1, 2 or 5 times a power of ten
  double Length = 0;  // fraction of the system's square
  std::string Text;   // "20 km", "500 m"
};

// The longest one that is at most `longest` (fraction of the square) long. A unit is a metre.
ScaleBar ScaleBarFor(double unitsAcross, double longest);

}  // namespace orrerix
