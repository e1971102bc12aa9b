// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "demo/files/writers.h"

namespace orrerix::demo {

// The ini file of one system, by its place in the plan: surroundings, sun, planets, stations, jump
// points, lanes, wrecks and zones. Texts get their numbers on the way.
std::string SystemFile(Game& game, int systemIndex);

}  // namespace orrerix::demo
