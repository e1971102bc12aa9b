// SPDX-License-Identifier: MIT
// What long work asks of its host: the window or the command line.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/message_box.h"
#include "shell/text_id.h"

namespace orrerix {

// State of the progress picture.
struct ImportProgress {
  std::int16_t ImportSteps = 5;  // all steps; grows while files are read
  std::int32_t ImportDone = 0;   // steps done
};

// Thrown by Yield when the user has closed the window: import and program end. Destructors clean
// up on its way; nothing else catches it.
struct ImportEnded {};

class ImportHost {
 public:
  virtual ~ImportHost() = default;

  // Replaces or extends the text that describes the current step.
  virtual void ShowText(std::string_view text) = 0;
  virtual void AppendText(std::string_view text) = 0;

  // Shows how far the current step is, `value` of `maximum`.
  virtual void ProgressIt(std::int32_t maximum, std::int32_t value,
                          const ImportProgress& progress) = 0;

  // Lets pending events through.
  virtual void Yield() = 0;
  virtual void Pause(int milliseconds) = 0;
  virtual MessageAnswer Show(const Message& message) = 0;

  // The language of the texts and messages.
  virtual Language Speech() const { return Language::English; }

  virtual std::uint32_t TickCount() = 0;
  virtual bool IsMinimised() const = 0;
  // Whether the progress of every block is to be shown.
  virtual bool IsDebugging() const = 0;
};

}  // namespace orrerix
