// SPDX-License-Identifier: MIT
// The two logs of the program and the question that every failure asks.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "db/failure.h"
#include "platform/message_box.h"
#include "shell/text_id.h"
#include "shell/version.h"

namespace orrerix {

// What a window shows of the logs. A log without a window keeps its texts all the same.
class ErrorLogView {
 public:
  virtual ~ErrorLogView() = default;
  virtual void ShowWindow() = 0;    // shown, not modal, enabled
  virtual void TextsChanged() = 0;  // texts, or which halves are seen; the carets go to the ends
};

// What the user decides about a failed function: its next statement, or none.
enum class ErrorAnswer { GoOn, Leave };

// One program error as it was reported.
struct FailureEntry {
  std::string Source;
  std::string Info;
  Failure What;
};

// Model of the log window: the data log (remarks on the game's files) and the program log
// (failures). Nothing of it is written to disk. It is "loaded" on the first call of either
// operation; closing the window outside an import unloads it, and its texts are gone.
class ErrorLog {
 public:
  // `choice`, in whose language questions are asked, must outlive this.
  ErrorLog(MessageBoxes& messages, AppVersion version, const LanguageChoice& choice = kEnglishOnly);

  // Appends one remark on the game's files and shows the window. Always false.
  bool AddErrorLine(std::string_view line);

  // Logs a program error and asks the user whether the function goes on after the failed statement.
  [[nodiscard]] ErrorAnswer AddDataError(std::string_view source, const Failure& failure,
                                         std::string_view info);

  // The user closes the window. True if it is only hidden, as during an import, false if it is
  // unloaded: then no later call shows it again.
  bool QueryUnload(bool importing);

  void SetView(ErrorLogView* view) { view_ = view; }

  bool LogWindowOpen() const { return logWindowOpen_; }
  bool HasProgramError() const { return hasProgramError_; }
  const std::string& DataLog() const { return dataLog_; }
  const std::string& ProgramLog() const { return programLog_; }

  // How often the texts were restarted; in between they only grow.
  int Loads() const { return loads_; }

  // What came in since the program started, whatever became of the window.
  const std::vector<std::string>& DataLines() const { return dataLines_; }
  const std::vector<FailureEntry>& Failures() const { return failures_; }

  // Hands the data lines over: of millions of them no second copy is made.
  std::vector<std::string> TakeDataLines() { return std::exchange(dataLines_, {}); }

  // The text of a program error as log and question show it, each line with its CR LF.
  static std::string EntryText(std::string_view source, const Failure& failure,
                               std::string_view info);

 private:
  void Load();
  void OpenWindow();

  MessageBoxes& messages_;
  AppVersion version_;
  const LanguageChoice& choice_;
  ErrorLogView* view_ = nullptr;
  bool loaded_ = false;
  int loads_ = 0;
  bool logWindowOpen_ = false;
  bool hasProgramError_ = false;
  std::string dataLog_;
  std::string programLog_;
  std::vector<std::string> dataLines_;
  std::vector<FailureEntry> failures_;
};

}  // namespace orrerix
