// SPDX-License-Identifier: MIT
// The rules about hardpoints of loadouts.
#pragma once

#include "check/rules/findings.h"

namespace orrerix::check {

void CheckLoadouts(const CheckedGame& game, Findings& findings);

}  // namespace orrerix::check
