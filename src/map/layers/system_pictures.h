// SPDX-License-Identifier: MIT
// The pictures of single systems and the cells they belong to.
#pragma once

#include <array>
#include <string_view>

#include "derived/system_grid.h"

namespace orrerix {

inline constexpr int kSystemPictures = 47;

// What the picture's control says of its place: column, comma, row of the game's own count.
std::string_view SystemPictureTag(int picture);

// The cell of such a tag: the number before the comma plus 1, the number of its last two
// characters plus 2.
MapCell CellOfTag(std::string_view tag);

}  // namespace orrerix
