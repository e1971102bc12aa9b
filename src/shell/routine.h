// SPDX-License-Identifier: MIT
// The frame of every function of substance: where a failure stops, and what the user decides.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "db/failure.h"
#include "shell/error_log.h"

namespace orrerix {

// A routine's steps are its statements. What fails in one is reported under the routine's name;
// on OK the step has not happened and the next one runs, on Cancel the routine leaves its body and
// returns what it has, with destructors as its clean-up. No failure leaves a routine.
class Routine : public FailureSink {
 public:
  using InfoText = std::function<std::string()>;

  // `source` is form or module, a point and the function's name; `info` the text that the user
  // reads beside it, made only if something fails.
  Routine(ErrorLog& log, std::string_view source, InfoText info);
  Routine(ErrorLog& log, std::string_view source, std::string_view info = {});
  // A literal needs no memory, for there is no frame yet that would report a lack of it.
  template <std::size_t N>
  Routine(ErrorLog& log, std::string_view source, const char (&info)[N])
      : Routine(log, source,
                [text = static_cast<const char*>(info)] { return std::string(text); }) {}
  Routine(const Routine&) = delete;
  Routine& operator=(const Routine&) = delete;

  // Runs the body. False if the user cancelled it. What fails outside a step of its own ends the
  // body, since there is no telling where its next statement is.
  template <typename Body>
  bool Run(Body&& body);

  // Runs one step that may throw a Failure, and hands that to the user. False if it failed.
  template <typename Step>
  bool Try(Step&& step);

  // What a variable holds after a step's result is assigned to it: `before`, what it held, if the
  // step fails. As in "x = routine.Or(x, [&] { return F(); })".
  template <typename T, typename Step>
  [[nodiscard]] T Or(T before, Step&& step);

  // What a variable holds after a number is assigned to it: the number as a 32-bit (16-bit)
  // integer, rounded to nearest, ties to even. Outside the type's range that fails with Overflow,
  // and the variable keeps what it held before.
  [[nodiscard]] std::int32_t Long(double number, std::int32_t before);
  [[nodiscard]] std::int16_t Integer(double number, std::int16_t before);

  void Fail(const Failure& failure) override;

 protected:
  // Thrown through the body on Cancel; caught by Run of the same routine only.
  struct Leave {
    const Routine* Who;
  };

  ErrorLog& Log() { return log_; }

 private:
  ErrorAnswer Report(const Failure& failure);

  ErrorLog& log_;
  std::string_view source_;
  InfoText info_;
};

// A number as a 32-bit integer, as part of a larger step; throws Overflow outside its range.
std::int32_t RequireLong(double number);

template <typename Body>
bool Routine::Run(Body&& body) {
  std::optional<Failure> escaped;
  try {
    body();
    return true;
  } catch (const Leave& leave) {
    if (leave.Who != this) throw;
    return false;
  } catch (...) {
    escaped = CaughtFailure();
  }
  return Report(*escaped) == ErrorAnswer::GoOn;
}

template <typename T, typename Step>
T Routine::Or(T before, Step&& step) {
  std::optional<Failure> failed;
  try {
    return step();
  } catch (...) {
    failed = CaughtFailure();
  }
  Fail(*failed);
  return before;
}

template <typename Step>
bool Routine::Try(Step&& step) {
  std::optional<Failure> failed;
  try {
    step();
    return true;
  } catch (...) {
    failed = CaughtFailure();
  }
  Fail(*failed);
  return false;
}

}  // namespace orrerix
