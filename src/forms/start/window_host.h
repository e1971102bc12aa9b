// SPDX-License-Identifier: MIT
#pragma once

#include "forms/start/import_screen.h"
#include "import/import_host.h"
#include "platform/memory_status.h"
#include "shell/error_log.h"

namespace orrerix {

// Runs an import in the main form: its yield is the event loop.
class WindowHost : public ImportHost {
 public:
  // `start` is the memory as it was when the program started.
  WindowHost(QWidget& form, ImportScreen& screen, MessageBoxes& messages, ErrorLog& log,
             const MemoryStatus& start, bool debugging, const LanguageChoice& choice);

  // The user has closed the form: the next yield ends the import.
  void End() { ended_ = true; }
  bool Ended() const { return ended_; }

  void ShowText(std::string_view text) override;
  void AppendText(std::string_view text) override;
  void ProgressIt(std::int32_t maximum, std::int32_t value,
                  const ImportProgress& progress) override;
  void Yield() override;
  void Pause(int milliseconds) override;
  MessageAnswer Show(const Message& message) override { return messages_.Show(message); }
  Language Speech() const override { return choice_.Current; }
  std::uint32_t TickCount() override;
  bool IsMinimised() const override { return form_.isMinimized(); }
  bool IsDebugging() const override { return debugging_; }

 private:
  QWidget& form_;
  ImportScreen& screen_;
  MessageBoxes& messages_;
  ErrorLog& log_;
  const MemoryStatus& start_;
  bool debugging_;
  const LanguageChoice& choice_;
  bool ended_ = false;
};

}  // namespace orrerix
