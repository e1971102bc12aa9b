// SPDX-License-Identifier: MIT
// One import into a universe file, as several verbs need it.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "cli/options.h"
#include "import/resources/crunching.h"
#include "shell/error_log.h"

namespace orrerix {

struct ImportAnswer {
  bool IsFinished = false;  // else the universe file is as it was before
  std::vector<TableCount> Tables;
  std::vector<std::string> LogEntries;  // of the data log; each line end within them is one LF
  std::vector<FailureEntry> Failures;
  double Seconds = 0;
};

class UniverseImport {
 public:
  // Makes the folder of the universe file where it is missing. Throws CouldNot if that fails, or if
  // `game` is no game folder. `options` must outlive this.
  UniverseImport(const CommonOptions& options, std::string game,
                 const std::filesystem::path& universeFile);

  const std::filesystem::path& Target() const { return target_; }

  // Imports beside the universe file, which is replaced in one step once all is done. Failures are
  // answered by the options' policy and printed to standard error. The import is given up as soon
  // as `isEnded`, if there is one, says so. Throws CouldNot if another process uses the file.
  ImportAnswer Run(bool quiet, const std::function<bool()>& isEnded = {}) const;

 private:
  const CommonOptions& options_;
  std::string game_;
  std::filesystem::path target_;
};

// The entries one after the other, each with a newline after it.
std::string LogText(const std::vector<std::string>& entries);

// Replaces a file by a text. Throws CouldNot.
void WriteFile(const std::string& path, const std::string& text);

// Throws CouldNot if a file cannot be written to; what it holds stays.
void RequireWritable(const std::string& path);

}  // namespace orrerix
