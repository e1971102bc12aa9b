// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "import/universe.h"
#include "info/texts/wording.h"

namespace orrerix {

// What an info text is about. A number that is none of these has no text.
enum class InfoType : std::int16_t { Ship = 1, Equipment = 2, Group = 3 };

// The text of the large info box: lines ending in CR LF, but for the last. A ship with its price
// and handling; a piece of equipment with its price and, for shields and guns, the figures that a
// player compares; a faction with its story. Empty for an unknown nickname, whose case does not
// count. A line that cannot be written (a gun without refire has no rate) is a failure and is left
// out.
std::string GetInfoTextType(Universe& universe, const Wording& wording, std::string_view nickname,
                            InfoType type);

}  // namespace orrerix
