// SPDX-License-Identifier: MIT
// Questions and remarks to the user.
#pragma once

#include <string>

namespace orrerix {

enum class MessageAnswer { Ok, Cancel, Abort, Retry, Ignore, Leave };
enum class MessageButtons { Ok, OkCancel, AbortRetryIgnore, RetryLeave };
enum class MessageIcon { None, Exclamation, Critical };

struct Message {
  std::string Text;
  std::string Title;
  MessageButtons Buttons = MessageButtons::Ok;
  MessageIcon Icon = MessageIcon::None;
  int QuestionLines = 0;  // so many lines at the text's end stay in sight when the rest scrolls
};

// Shows a message and waits for the user's answer.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  virtual MessageAnswer Show(const Message& message) = 0;
};

}  // namespace orrerix
