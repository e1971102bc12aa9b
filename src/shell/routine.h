// SPDX-License-Identifier: MIT
// The frame of every function of substance: where a failure stops, and what the user decides.
#pragma once

#include <cstdint>
#include <functional>
#include <new>
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
  Routine(const Routine&) = delete;
  Routine& operator=(const Routine&) = delete;

  // Runs the body. False if the user cancelled it.
  template <typename Body>
  bool Run(Body&& body);

  // Runs one step that may throw a Failure, and hands that to the user. False if it failed.
  template <typename Step>
  bool Try(Step&& step);

  // A number as a 32-bit (16-bit) integer, rounded to nearest, ties to even. Outside the type's
  // range it fails with Overflow and is 0.
  std::int32_t Long(double number);
  std::int16_t Integer(double number);

  void Fail(const Failure& failure) override;

 protected:
  // Thrown through the body on Cancel; caught by Run of the same routine only.
  struct Leave {
    const Routine* Who;
  };

  ErrorLog& Log() { return log_; }

 private:
  ErrorLog& log_;
  std::string_view source_;
  InfoText info_;
};

template <typename Body>
bool Routine::Run(Body&& body) {
  std::optional<Failure> escaped;
  try {
    body();
    return true;
  } catch (const Leave& leave) {
    if (leave.Who != this) throw;
    return false;
  } catch (const Failure& failure) {
    escaped = failure;
  } catch (const std::bad_alloc&) {
    escaped = RuntimeFailure(failure_number::kOutOfMemory);
  }
  // A step that was not told apart failed: there is nothing behind it to go on with.
  bool cancelled = false;
  log_.AddDataError(source_, *escaped, info_ ? info_() : std::string(), cancelled);
  return false;
}

template <typename Step>
bool Routine::Try(Step&& step) {
  std::optional<Failure> failed;
  try {
    step();
    return true;
  } catch (const Failure& failure) {
    failed = failure;
  } catch (const std::bad_alloc&) {
    failed = RuntimeFailure(failure_number::kOutOfMemory);
  }
  Fail(*failed);
  return false;
}

}  // namespace orrerix
