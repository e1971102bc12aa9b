// SPDX-License-Identifier: MIT
// How alike two keys are.
#pragma once

#include <string_view>

namespace orrerix::check {

// Whether one key has one letter more, less or other than the other, or two neighbours swapped,
// and the letters in question are not digits only.
bool IsOneSlipFrom(std::u32string_view a, std::u32string_view b);

}  // namespace orrerix::check
