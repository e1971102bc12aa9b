// SPDX-License-Identifier: MIT
// The rules about nicknames and names of what the files define.
#pragma once

#include "check/rules/findings.h"

namespace orrerix::check {

void CheckDefinitions(const CheckedGame& game, Findings& findings);

}  // namespace orrerix::check
