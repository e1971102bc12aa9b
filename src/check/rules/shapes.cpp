// SPDX-License-Identifier: MIT
#include "check/rules/shapes.h"

#include <fmt/format.h>

#include "check/model/numbers.h"

namespace orrerix::check {
namespace {

// The type of the n-th value, from 0; none beyond the shape.
char TypeAt(const Shape& shape, std::size_t n) {
  if (n < shape.Must.size()) return shape.Must[n];
  n -= shape.Must.size();
  if (n < shape.Optional.size()) return shape.Optional[n];
  if (!shape.RepeatsLast) return '\0';
  return shape.Optional.empty() ? shape.Must.back() : shape.Optional.back();
}

std::string WantedCount(const Shape& shape) {
  const std::size_t least = shape.Must.size();
  if (shape.RepeatsLast) return fmt::format("{} or more", least);
  const std::size_t most = least + shape.Optional.size();
  return least == most ? fmt::format("{}", least) : fmt::format("{} to {}", least, most);
}

}  // namespace

void CheckShape(const Shape& shape, const IniSection& section, const IniEntry& entry,
                Findings& findings) {
  auto values = entry.Values();
  while (!values.empty() && values.back().empty()) values.pop_back();
  for (std::size_t i = 0; i < values.size(); ++i) {
    const char type = TypeAt(shape, i);
    if (type == '\0') break;
    if (type == 'N' && IsNumbersWithoutCommas(values[i])) {
      findings.Add(Rule::MissingComma, AtEntry(section, entry),
                   fmt::format("a comma is missing between numbers: {}", values[i]));
      return;
    }
    if (type == 'N' && !IsNumber(values[i])) {
      findings.Add(Rule::NumberExpected, AtEntry(section, entry),
                   fmt::format("value {} is no number: {}", i + 1, values[i]));
      return;
    }
    if (type == 'T' && i < shape.Must.size() && values[i].empty()) {
      findings.Add(Rule::ValueCount, AtEntry(section, entry),
                   fmt::format("value {} is empty: {}", i + 1, entry.Value));
      return;
    }
  }
  const std::size_t most = shape.Must.size() + shape.Optional.size();
  if (values.size() >= shape.Must.size() && (values.size() <= most || shape.RepeatsLast)) return;
  findings.Add(
      Rule::ValueCount, AtEntry(section, entry),
      fmt::format("{} values instead of {}: {}", values.size(), WantedCount(shape), entry.Value));
}

void CheckRange(const Range& range, const IniSection& section, const IniEntry& entry,
                Findings& findings) {
  const std::string_view value = entry.At(range.ValueNumber);
  const auto number = ParseNumber(value);
  if (!number) return;
  const char* wanted = nullptr;
  switch (range.Wanted) {
    case Range::Limit::NotNegative:
      if (*number < 0) wanted = "0 or above";
      break;
    case Range::Limit::Positive:
      if (*number <= 0) wanted = "above 0";
      break;
    case Range::Limit::Reputation:
      if (*number < -1 || *number > 1) wanted = "from -1 to 1";
      break;
  }
  if (wanted == nullptr) return;
  findings.Add(Rule::NumberRange, AtEntry(section, entry),
               fmt::format("{} should be {}: {}", entry.Key, wanted, value));
}

}  // namespace orrerix::check
