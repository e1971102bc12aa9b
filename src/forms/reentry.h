// SPDX-License-Identifier: MIT
// What lets events through may be asked for again before it has returned. These two own the answer.
#pragma once

#include <QScopedValueRollback>
#include <utility>

#include "platform/message_box.h"

namespace orrerix {

// Runs a step; requests that arrive while it runs are served by one more run after it.
class RepeatableStep {
 public:
  template <typename Step>
  void Run(Step&& step) {
    wanted_ = true;
    if (running_) return;
    const QScopedValueRollback<bool> running(running_, true);
    while (std::exchange(wanted_, false)) step();
  }

 private:
  bool running_ = false;
  bool wanted_ = false;
};

// Shows one message at a time; those that arrive while one is open are dropped.
class SingleMessage {
 public:
  explicit SingleMessage(MessageBoxes& messages) : messages_(messages) {}

  void Show(const Message& message) {
    if (open_) return;
    const QScopedValueRollback<bool> open(open_, true);
    messages_.Show(message);
  }
  bool IsOpen() const { return open_; }

 private:
  MessageBoxes& messages_;
  bool open_ = false;
};

}  // namespace orrerix
