// SPDX-License-Identifier: MIT
// The rules about number, type and range of a line's values.
#pragma once

#include "check/rules/findings.h"
#include "check/rules/shape_table.h"

namespace orrerix::check {

// At most one finding: of the leftmost value that is wrong, else of a wrong count.
void CheckShape(const Shape& shape, const IniSection& section, const IniEntry& entry,
                Findings& findings);

void CheckRange(const Range& range, const IniSection& section, const IniEntry& entry,
                Findings& findings);

}  // namespace orrerix::check
