// SPDX-License-Identifier: MIT
#pragma once

#include "platform/message_box.h"

namespace orrerix {

// Asks nobody: every failure is ignored, every message is taken as read.
class SilentBoxes : public MessageBoxes {
 public:
  MessageAnswer Show(const Message& message) override {
    return message.Buttons == MessageButtons::AbortRetryIgnore ? MessageAnswer::Ignore
                                                               : MessageAnswer::Ok;
  }
};

}  // namespace orrerix
