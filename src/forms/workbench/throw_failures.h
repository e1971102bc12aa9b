// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

#include "db/failure.h"

namespace orrerix {

// Ends background work at its first failure.
class ThrowFailures : public FailureSink {
 public:
  void Fail(const Failure& failure) override { throw std::runtime_error(failure.Description); }
};

}  // namespace orrerix
