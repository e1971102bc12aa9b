// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>

#include "db/failure.h"

namespace orrerix {

// Runs a step that throws its failure, and hands that to the sink. False if it failed.
template <typename Step>
bool Guard(FailureSink& sink, Step&& step) {
  std::optional<Failure> failed;
  try {
    step();
  } catch (...) {
    failed = CaughtFailure();
  }
  if (failed) sink.Fail(*failed);
  return !failed;
}

}  // namespace orrerix
