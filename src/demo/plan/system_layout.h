// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "demo/content/names.h"
#include "demo/plan/universe_plan.h"

namespace orrerix::demo {

// Fills a system with planets, stations, wrecks and fields, and lays its trade lanes. Needs the
// jump points, which say where lanes are wanted. `stationCount` counts the stations of the whole
// universe: their kinds take turns, so that every kind is met early.
void LayOutSystem(PlannedSystem& system, Names& names, int& stationCount);

// Lays lanes from the gates to the nearest places to land, and between planets. A lane keeps
// clear of the sun.
void LayLanes(PlannedSystem& system, const std::vector<std::string>& targetNames);

}  // namespace orrerix::demo
