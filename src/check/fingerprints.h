// SPDX-License-Identifier: MIT
// The order of findings, and the fingerprints by which they are known again.
#pragma once

#include <vector>

#include "check/finding.h"

namespace orrerix::check {

// Findings in the order of reports: file, line, rule, key, value, message. Each has its
// fingerprint, which a change of other lines leaves as it is.
std::vector<Finding> InOrderWithFingerprints(std::vector<Finding> findings);

}  // namespace orrerix::check
