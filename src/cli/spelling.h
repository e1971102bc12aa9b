// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orrerix {

// The candidate that is spelled most like a text, ignoring the case of ASCII letters: the one that
// the fewest insertions, deletions and substitutions of a byte make of it, the first of several.
// Empty if there are no candidates.
std::string MostAlike(std::string_view text, const std::vector<std::string>& candidates);

}  // namespace orrerix
