// SPDX-License-Identifier: MIT
// Where the systems of the demo game stand on the universe map.
#pragma once

#include <compare>
#include <vector>

namespace orrerix::demo {

// A position of the universe map as the game's universe file writes it: columns -1 to 16, rows -2
// to 16. Several systems may share one.
struct Cell {
  int X = 0;
  int Y = 0;

  auto operator<=>(const Cell&) const = default;
};

struct PlacedCell {
  Cell Place;
  int Nation = 0;  // index into Nations
};

double CellDistance(Cell a, Cell b);

// The cells of `count` systems with their nations. The first 47 are the cells that have a painted
// picture, handed out nation by nation in turn, so that a small universe has something of each;
// then come the free cells from the middle outward, each for the nation next to it. The top left
// cell stays empty, as maps show no name there. When all cells are taken they are used again.
std::vector<PlacedCell> PlaceCells(int count);

}  // namespace orrerix::demo
