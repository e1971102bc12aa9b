// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "demo/plan/map_cells.h"

namespace orrerix::demo {

// A connection of two systems, by their places in the list of cells; traffic goes both ways.
struct Connection {
  int A = 0;
  int B = 0;
  bool Hole = false;  // a jump hole at both ends, else a gate
};

// Connects all systems: the systems of a nation by a tree of gates, the nations by gates where they
// come closest, each border world by a hole (every third one by a gate too) to the nearest system
// that is connected already, and some shortcuts through holes. Two systems have at most one gate
// and one hole between them.
std::vector<Connection> ConnectSystems(const std::vector<PlacedCell>& cells);

}  // namespace orrerix::demo
