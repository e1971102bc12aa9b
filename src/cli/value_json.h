// SPDX-License-Identifier: MIT
#pragma once

#include <nlohmann/json.hpp>

#include "db/values/value.h"

namespace orrerix {

// A field's content as JSON: Null as null, numbers as numbers.
inline nlohmann::ordered_json ValueJson(const Value& value) {
  if (const std::int64_t* whole = value.Whole()) return *whole;
  if (const double* real = value.Real()) return *real;
  if (const std::string* text = value.TextContent()) return *text;
  return nullptr;
}

}  // namespace orrerix
