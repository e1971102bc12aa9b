// SPDX-License-Identifier: MIT
// The rules about what factions think of each other.
#pragma once

#include "check/rules/findings.h"

namespace orrerix::check {

void CheckFactions(const CheckedGame& game, Findings& findings);

}  // namespace orrerix::check
