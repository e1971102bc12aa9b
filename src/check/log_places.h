// SPDX-License-Identifier: MIT
// Where in the game's files the entries of the data log belong. The import knows no lines.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "import/log_entry.h"

namespace orrerix::check {

struct LogPlace {
  std::string File;  // below the game folder, as on disk; empty where the entry names none
  int Line = 0;      // from 1; 0 where it is not known
};

// One place for each entry. `game` is the folder that the entries' files are in. The line of a
// refused section is that of its header, of a key that stands twice that of the later one. Of
// several equal sections in a file the last are those that the log is about.
std::vector<LogPlace> PlacesOfLog(const std::filesystem::path& game,
                                  const std::vector<LogEntry>& entries);

}  // namespace orrerix::check
