// SPDX-License-Identifier: MIT
// The rule about keys that are probably misspelt.
#pragma once

#include "check/rules/findings.h"

namespace orrerix::check {

void CheckKeySpelling(const CheckedGame& game, Findings& findings);

}  // namespace orrerix::check
