// SPDX-License-Identifier: MIT
// One walk over all lines of the files that rules know: what the tables say about each key.
#pragma once

#include <functional>

#include "check/rules/findings.h"

namespace orrerix::check {

// Rules of references, shapes, ranges, text numbers, assets and repeated keys.
void CheckLines(const CheckedGame& game, Findings& findings, const std::function<void()>& goOn);

}  // namespace orrerix::check
