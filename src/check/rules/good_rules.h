// SPDX-License-Identifier: MIT
// The rules about goods: their parts and prices, the markets that sell them, what mounts them.
#pragma once

#include "check/rules/findings.h"

namespace orrerix::check {

void CheckGoods(const CheckedGame& game, Findings& findings);

}  // namespace orrerix::check
