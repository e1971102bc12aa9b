// SPDX-License-Identifier: MIT
// What a benchmark does with failures and messages: it stops at the former, nobody sees the latter.
#pragma once

#include <stdexcept>

#include "db/failure.h"
#include "platform/message_box.h"

namespace orrerix {

// Throws std::runtime_error with the failure's description.
class MustWork : public FailureSink {
 public:
  void Fail(const Failure& failure) override { throw std::runtime_error(failure.Description); }
};

// Answers every message with OK.
class SilentMessages : public MessageBoxes {
 public:
  MessageAnswer Show(const Message&) override { return MessageAnswer::Ok; }
};

}  // namespace orrerix
