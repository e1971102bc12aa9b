// SPDX-License-Identifier: MIT
// The rules about systems, bases and the map.
#pragma once

#include "check/rules/findings.h"

namespace orrerix::check {

void CheckUniverse(const CheckedGame& game, Findings& findings);

}  // namespace orrerix::check
