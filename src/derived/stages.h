// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "import/import_driver.h"

namespace orrerix {

// The six calculations of an import in their order: each needs the tables of those before it.
std::vector<DerivedStage> DerivedStages();

}  // namespace orrerix
