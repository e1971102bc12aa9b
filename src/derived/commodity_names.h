// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "import/universe.h"

namespace orrerix {

// Display name of a commodity: from table `commodity`, whatever the nickname's case, else from the
// string that the game keeps for one of its own 40 commodities, case and all. Empty for any other.
std::string RealComName(Universe& universe, std::string_view nickname);

}  // namespace orrerix
