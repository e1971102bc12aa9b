// SPDX-License-Identifier: MIT
// One field's content: Null, a whole number, a real number or a text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace orrerix {

struct Null {
  bool operator==(const Null&) const = default;
};

class Value {
 public:
  Value() = default;
  // By assignment, which leaves a whole value where memory for the text is lacking; the variant's
  // own copy constructor destroys content that was never built.
  Value(const Value& other) { content_ = other.content_; }
  Value(Value&&) noexcept = default;
  Value& operator=(const Value&) = default;
  Value& operator=(Value&&) noexcept = default;
  Value(Null) {}
  template <typename Number>
  requires std::is_integral_v<Number> Value(Number number)
      : content_(static_cast<std::int64_t>(number)) {}
  Value(double number) : content_(number) {}
  Value(std::string text) : content_(std::move(text)) {}
  Value(std::string_view text) : content_(std::string(text)) {}
  Value(const char* text) : content_(std::string(text)) {}

  bool IsNull() const { return std::holds_alternative<Null>(content_); }
  bool IsText() const { return std::holds_alternative<std::string>(content_); }
  const std::int64_t* Whole() const { return std::get_if<std::int64_t>(&content_); }
  const double* Real() const { return std::get_if<double>(&content_); }

  // The text itself if it is one, else nothing.
  const std::string* TextContent() const { return std::get_if<std::string>(&content_); }

  // The content joined to a text: numbers in plain decimal, Null as nothing.
  std::string Text() const;

  // The same out of a value that is used up.
  std::string TakeText() &&;

  // The content as a number: a text by the number at its start, Null as 0.
  double Number() const;

  bool operator==(const Value&) const = default;

 private:
  std::variant<Null, std::int64_t, double, std::string> content_;
};

}  // namespace orrerix
