// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <vector>

#include "platform/message_box.h"

namespace orrerix {

// Answers every question in the same way.
class FakeMessageBoxes : public MessageBoxes {
 public:
  MessageAnswer Answer = MessageAnswer::Ok;
  std::vector<Message> Shown;
  std::function<void()> WhileShown;  // what happens before the user answers

  MessageAnswer Show(const Message& message) override {
    Shown.push_back(message);
    if (WhileShown) WhileShown();
    return Answer;
  }
};

}  // namespace orrerix
