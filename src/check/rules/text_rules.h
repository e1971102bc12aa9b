// SPDX-License-Identifier: MIT
// The rules about the text of a file: lines, headers, bytes.
#pragma once

#include "check/rules/findings.h"

namespace orrerix::check {

void CheckTexts(const CheckedGame& game, Findings& findings);

}  // namespace orrerix::check
