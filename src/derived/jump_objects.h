// SPDX-License-Identifier: MIT
#pragma once

#include "import/import_host.h"
#include "import/universe.h"

namespace orrerix {

// Kinds of jump connections as `JumpNodes.Type` has them.
inline constexpr int kJumpGate = 1;
inline constexpr int kJumpHole = 3;

// Fills table JumpNodes: one row for each connection between two objects with a jump effect, from
// the end that comes first by effect. An end that leads nowhere has no row; a target without a
// position lies in the middle of its system and is named in the data log.
void CalcJumpObjects(Universe& universe, ImportHost& host);

}  // namespace orrerix
