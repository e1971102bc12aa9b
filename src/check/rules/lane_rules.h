// SPDX-License-Identifier: MIT
// The rules about trade lanes and jumps.
#pragma once

#include "check/rules/findings.h"

namespace orrerix::check {

void CheckLanesAndJumps(const CheckedGame& game, Findings& findings);

}  // namespace orrerix::check
