// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include <gtest/gtest.h>

#include "db/failure.h"

namespace orrerix {

// A failure of the test's own statements fails the test.
class FailTest : public FailureSink {
 public:
  void Fail(const Failure& failure) override {
    ADD_FAILURE() << failure.Number << ": " << failure.Description;
  }
};

// Remembers failures; the work goes on, as after OK.
class RecordFailures : public FailureSink {
 public:
  std::vector<Failure> Failures;
  void Fail(const Failure& failure) override { Failures.push_back(failure); }
  std::vector<int> Numbers() const {
    std::vector<int> numbers;
    for (const Failure& failure : Failures) numbers.push_back(failure.Number);
    return numbers;
  }
};

}  // namespace orrerix
