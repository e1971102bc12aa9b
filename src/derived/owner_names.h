// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "import/universe.h"

namespace orrerix {

// Gives every row of `Groups` its name and short name.
void CalcOwnerNames(Universe& universe);

// Name, short name and info text of a faction, from its numbers in `Groups`. An unknown nickname
// gives "Name-ID: ", "Short-Name-ID: " or "Info-ID: " and the nickname.
std::string GetOwnerName(Universe& universe, std::string_view nickname);
std::string GetOwnerShortName(Universe& universe, std::string_view nickname);
std::string GetOwnerInfo(Universe& universe, std::string_view nickname);

}  // namespace orrerix
