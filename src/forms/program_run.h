// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include "forms/error_log_window.h"
#include "forms/form_parts.h"
#include "forms/orrerix_main.h"
#include "forms/start/loading.h"
#include "forms/start/update.h"

namespace orrerix {

// One run of the program, from the start form to the last window closed.
class ProgramRun {
 public:
  explicit ProgramRun(const FormParts& parts);
  ~ProgramRun();

  // Shows the start form; everything else follows from its first focus.
  void Start();

  // Null before the start form has done its work.
  OrrerixMain* Main() { return main_.get(); }
  Loading& StartForm() { return loading_; }
  ErrorLogWindow& LogWindow() { return errorLog_; }

  // Called when the last window is gone; ends the event loop unless it is replaced.
  std::function<void()> OnEnd;

 private:
  void GotFocus();
  bool CheckEngine();
  void ReadLanguage();
  std::string LoadNews();
  bool LoadMain();
  bool ShowSpoiler();
  void ShowUpdate(const News& news);
  void EndAtOnce();
  void UnloadStartForms();
  void CloseProgram();

  const FormParts& parts_;
  MemoryStatus memStart_;
  std::optional<JetVersionOption> format_;
  std::optional<Settings> settings_;
  std::optional<LanguageFile> language_;
  Loading loading_;
  std::unique_ptr<OrrerixMain> main_;
  ErrorLogWindow errorLog_;
  std::unique_ptr<Update> update_;
};

}  // namespace orrerix
