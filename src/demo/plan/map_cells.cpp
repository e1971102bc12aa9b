// SPDX-License-Identifier: MIT
#include "demo/plan/map_cells.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "demo/content/nations.h"

namespace orrerix::demo {
namespace {

constexpr int kFirstColumn = -1;
constexpr int kLastColumn = 16;
constexpr int kFirstRow = -2;
constexpr int kLastRow = 16;
constexpr Cell kNameless = {kFirstColumn, kFirstRow};
constexpr Cell kMiddle = {8, 8};
constexpr double kNationReach = 2.3;  // a cell farther from every nation belongs to the border

// Cells with a picture: one region a nation, the border worlds around and between them.
const std::vector<std::vector<Cell>>& Regions() {
  static const std::vector<std::vector<Cell>> regions = {
      {{7, 4}, {7, 3}, {6, 4}, {8, 4}, {7, 2}, {7, 5}, {9, 2}},
      {{7, 8}, {8, 9}, {7, 7}, {9, 7}, {6, 9}, {9, 9}, {8, 6}, {6, 6}},
      {{10, 11}, {10, 10}, {11, 11}, {12, 10}, {11, 12}, {9, 10}},
      {{4, 10}, {5, 10}, {5, 9}, {3, 12}, {2, 11}, {5, 12}, {2, 9}},
      {{11, 6},
       {3, 6},
       {8, 13},
       {12, 6},
       {2, 7},
       {7, 12},
       {11, 4},
       {10, 14},
       {5, 14},
       {2, 5},
       {4, 1},
       {13, 14},
       {15, 9},
       {10, 1},
       {8, 0},
       {1, 13},
       {0, 10},
       {15, 12},
       {15, 0}},
  };
  return regions;
}

std::vector<PlacedCell> PicturedCells() {
  std::vector<PlacedCell> cells;
  const auto& regions = Regions();
  for (std::size_t round = 0; round < regions.back().size(); ++round) {
    for (std::size_t nation = 0; nation < regions.size(); ++nation) {
      if (round < regions[nation].size()) {
        cells.push_back({regions[nation][round], static_cast<int>(nation)});
      }
    }
  }
  return cells;
}

int NationNear(Cell cell) {
  int nearest = kBorderWorlds;
  double best = kNationReach;
  for (int nation = 0; nation < kNationCount; ++nation) {
    for (const Cell other : Regions()[static_cast<std::size_t>(nation)]) {
      if (CellDistance(cell, other) < best) {
        best = CellDistance(cell, other);
        nearest = nation;
      }
    }
  }
  return nearest;
}

bool IsPictured(Cell cell) {
  return std::any_of(Regions().begin(), Regions().end(), [cell](const std::vector<Cell>& region) {
    return std::find(region.begin(), region.end(), cell) != region.end();
  });
}

std::vector<PlacedCell> FreeCells() {
  std::vector<PlacedCell> cells;
  for (int y = kFirstRow; y <= kLastRow; ++y) {
    for (int x = kFirstColumn; x <= kLastColumn; ++x) {
      const Cell cell = {x, y};
      if (cell != kNameless && !IsPictured(cell)) cells.push_back({cell, NationNear(cell)});
    }
  }
  std::stable_sort(cells.begin(), cells.end(), [](const PlacedCell& a, const PlacedCell& b) {
    return CellDistance(a.Place, kMiddle) < CellDistance(b.Place, kMiddle);
  });
  return cells;
}

}  // namespace

double CellDistance(Cell a, Cell b) {
  const double x = a.X - b.X;
  const double y = a.Y - b.Y;
  return std::sqrt(x * x + y * y);
}

std::vector<PlacedCell> PlaceCells(int count) {
  std::vector<PlacedCell> cells = PicturedCells();
  const std::vector<PlacedCell> free = FreeCells();
  cells.insert(cells.end(), free.begin(), free.end());
  const std::size_t different = cells.size();
  while (cells.size() < static_cast<std::size_t>(count)) {
    cells.push_back(cells[cells.size() - different]);
  }
  cells.resize(static_cast<std::size_t>(count));
  return cells;
}

}  // namespace orrerix::demo
