// SPDX-License-Identifier: MIT
// Where a system lies on the map, and where an object lies in its system.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "import/universe.h"
#include "shell/routine.h"

namespace orrerix {

// The map's highest column and row.
inline constexpr int MapMaxX = 17;
inline constexpr int MapMaxY = 18;

// A cell of the map: column and row.
struct MapCell {
  int X = 0;
  int Y = 0;
  bool operator==(const MapCell&) const = default;
};

// A point inside its system's square, in fractions of the square from its top left corner: 0.5 is
// the middle.
struct CellFraction {
  double X = 0.5;
  double Y = 0.5;
};

// A position in game units, in the order of a file's numbers: east, height, south.
struct ObjectPosition {
  std::int32_t X = 0;
  std::int32_t Height = 0;
  std::int32_t Z = 0;
};

struct PlacedObject {
  ObjectPosition Position;
  CellFraction Place;
};

// The text of a cell as `Systems.pos` holds it: "7, 4".
std::string CellText(MapCell cell);

// The grid of systems as one text: 12 characters a cell, row by row, "*", the upper-case nickname
// cut or padded to 10 characters, "*".
class SystemGrid {
 public:
  // Reads `Systems`.
  SystemGrid(FailureSink& routine, Universe& universe);

  // The cell of a system; column 0, row 0 for one that is not in the grid. Only the first 10
  // characters of a nickname count.
  MapCell FindCell(std::string_view systemNickname);

  // How much larger than usual the coordinates of a cell's system are drawn: its `navmapscale` if
  // that is above 0, else 1.
  double Scale(MapCell cell) const;

  const std::string& Text() const { return text_; }

 private:
  MapCell Search(const std::string& gridCell) const;

  std::string text_;
  std::unordered_map<std::string, MapCell> found_;  // by the cell's text
  std::unordered_map<std::string, double> scales_;  // by `pos`
};

// How much larger than usual a system's coordinates are drawn: its `navmapscale` if that is above
// 0, else 1. `cell` is the system's own.
double SystemScale(FailureSink& routine, Universe& universe, MapCell cell);

// Reads the text of an object's `pos`, three numbers rounded to whole ones, ties to even. Throws 5
// where a comma is missing and 6 where a number leaves 32 bits.
ObjectPosition ParsePosition(std::string_view pos);

// (((units * 3) / 4) * scale + 100000) / 200000. The product with 3 is one of whole numbers, and
// throws 6 outside 32 bits.
double MapFraction(std::int32_t units, double scale);

// Where an object lies, from the text of its `pos`. A coordinate of the place that fails is that of
// `before`; the numbers of the position are all 0 where it cannot be read.
PlacedObject PlaceObject(Routine& routine, std::string_view pos, double scale, CellFraction before);

}  // namespace orrerix
