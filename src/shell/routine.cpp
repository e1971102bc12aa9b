// SPDX-License-Identifier: MIT
#include "shell/routine.h"

#include <utility>

#include "db/values/number_text.h"

namespace orrerix {

Routine::Routine(ErrorLog& log, std::string_view source, InfoText info)
    : log_(log), source_(source), info_(std::move(info)) {}

Routine::Routine(ErrorLog& log, std::string_view source, std::string_view info)
    : log_(log), source_(source) {
  if (!info.empty()) info_ = [text = std::string(info)] { return text; };
}

std::int32_t RequireLong(double number) {
  const auto whole = ToLong(number);
  if (!whole) throw RuntimeFailure(failure_number::kOverflow);
  return *whole;
}

std::int32_t Routine::Long(double number, std::int32_t before) {
  const auto whole = ToLong(number);
  if (!whole) Fail(RuntimeFailure(failure_number::kOverflow));
  return whole.value_or(before);
}

std::int16_t Routine::Integer(double number, std::int16_t before) {
  const auto whole = ToInteger(number);
  if (!whole) Fail(RuntimeFailure(failure_number::kOverflow));
  return whole.value_or(before);
}

ErrorAnswer Routine::Report(const Failure& failure) {
  return log_.AddDataError(source_, failure, info_ ? info_() : std::string());
}

void Routine::Fail(const Failure& failure) {
  if (Report(failure) == ErrorAnswer::Leave) throw Leave{this};
}

}  // namespace orrerix
