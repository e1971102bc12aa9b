// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/message_box.h"

namespace orrerix {

// Answers every question in the same way.
class FakeMessageBoxes : public MessageBoxes {
 public:
  MessageAnswer Answer = MessageAnswer::Ok;
  std::vector<Message> Shown;

  MessageAnswer Show(const Message& message) override {
    Shown.push_back(message);
    return Answer;
  }
};

}  // namespace orrerix
