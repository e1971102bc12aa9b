// SPDX-License-Identifier: MIT
// The rules about files: which are missing, damaged, named or stored oddly.
#pragma once

#include "check/rules/findings.h"

namespace orrerix::check {

void CheckFiles(const CheckedGame& game, Findings& findings);

}  // namespace orrerix::check
