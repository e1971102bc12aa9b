// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "demo/content/names.h"
#include "demo/plan/universe_plan.h"

namespace orrerix::demo {

// Fills a system with planets, stations, wrecks and fields, and lays its trade lanes. Needs the
// jump points, which say where lanes are wanted. The kinds of stations take turns in the whole
// universe, so that every kind is met early: `stationsBefore` are in the systems laid out so far,
// and the answer counts those of this one as well.
[[nodiscard]] int LayOutSystem(PlannedSystem& system, Names& names, int stationsBefore);

// Lays lanes from the gates to the nearest places to land, and between planets. A lane keeps
// clear of the sun.
void LayLanes(PlannedSystem& system, const std::vector<std::string>& targetNames);

}  // namespace orrerix::demo
