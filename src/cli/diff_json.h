// SPDX-License-Identifier: MIT
// Differences of universes as the command line writes them.
#pragma once

#include <nlohmann/json.hpp>

#include "diff/universe_diff.h"

namespace orrerix {

// {"added", "removed", "changed", "tables_added", "tables_removed"}
nlohmann::ordered_json DiffSummaryJson(const UniverseDiff& diff);

// {"tables": {NAME: {"added", "removed", "changed"}}, "summary"}
nlohmann::ordered_json DiffJson(const UniverseDiff& diff);

}  // namespace orrerix
