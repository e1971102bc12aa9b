// SPDX-License-Identifier: MIT
// How the values of fields compare.
#pragma once

#include <string_view>

#include "db/values/value.h"

namespace orrerix {

// Whether two values are the same: numbers by their size, whole or real, texts to the letter. A
// number and the text of that number differ, and so do Null and an empty text.
bool IsSameValue(const Value& a, const Value& b);

// Whether a value stands before another one: Null first, then numbers by their size, then texts
// without regard to the case of ASCII letters.
bool IsBefore(const Value& a, const Value& b);

// Whether a value is what a person means by a text, whatever the case of ASCII letters; a number
// also if the text is another spelling of it. An empty text means Null and an empty text.
bool Matches(const Value& value, std::string_view text);

}  // namespace orrerix
