// SPDX-License-Identifier: MIT
// An import that runs while the map stays in use.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "db/engine/engine.h"
#include "forms/workbench/background_task.h"
#include "platform/folder_watch.h"
#include "shell/version.h"

namespace orrerix {

struct ImportOutcome {
  bool Finished = false;
  std::string Error;  // why it could not begin; empty where it did
  std::vector<std::string> LogEntries;
  std::size_t Failures = 0;
  double Seconds = 0;
};

// Imports a game folder while its older universe stays on the map. Failures count as answered OK;
// the universe file is replaced in one step at the end.
class BackgroundImport {
 public:
  struct Order {
    std::string Game;
    std::filesystem::path UniverseFile;
    JetVersionOption Format = JetVersionOption::Version30;
    AppVersion Version;
  };

  // Starts an import, after cancelling one that runs; `done` is called from the event loop.
  void Start(const Order& order, std::function<void(ImportOutcome)> done);

  bool IsRunning() const { return task_.IsRunning(); }

  // The same without a thread of its own: returns when the import is done or cancelled. A record
  // and the log are kept beside the universe file.
  static ImportOutcome Run(const Order& order, const BackgroundTask::IsCancelled& isCancelled);

 private:
  BackgroundTask task_;
};

}  // namespace orrerix
