// SPDX-License-Identifier: MIT
#include "db/values/value.h"

#include "db/values/number_text.h"

namespace orrerix {

std::string Value::Text() const {
  if (const std::string* text = TextContent()) return *text;
  if (const std::int64_t* whole = Whole()) return NumberText(*whole);
  if (const double* real = Real()) return NumberText(*real);
  return {};
}

std::string Value::TakeText() && {
  if (auto* text = std::get_if<std::string>(&content_)) return std::move(*text);
  return Text();
}

double Value::Number() const {
  if (const std::string* text = TextContent()) return Val(*text);
  if (const std::int64_t* whole = Whole()) return static_cast<double>(*whole);
  if (const double* real = Real()) return *real;
  return 0;
}

}  // namespace orrerix
