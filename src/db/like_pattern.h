// SPDX-License-Identifier: MIT
// The engine's own patterns.
#pragma once

#include <string_view>

namespace orrerix {

enum class LikeResult { No, Yes, InvalidPattern };

// Whether `text` fits `pattern`: "*" any run, "?" one character, "#" one digit, "[a-z]" one of a
// set, "[!a-z]" one outside it. The case of ASCII letters does not count. A "[" with no "]" behind
// it and a range from high to low are invalid, also where the match never gets that far.
LikeResult Like(std::string_view text, std::string_view pattern);

}  // namespace orrerix
