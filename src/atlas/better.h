// SPDX-License-Identifier: MIT
// Which of two numbers of a column a player wants.
#pragma once

#include <string_view>

namespace orrerix {

enum class Better { Neither, Higher, Lower };

// By the ID of a column: prices, energy that is used, times of waiting and the like are better
// lower, all other numbers higher. Neither for numbers that only tell kinds apart.
Better BetterOf(std::string_view column);

}  // namespace orrerix
