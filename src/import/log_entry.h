// SPDX-License-Identifier: MIT
// The data log as rows, and how it is kept beside a universe file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orrerix {

enum class LogKind {
  MissingFile,      // an ini file that is named but not there
  DoubleData,       // a key that a section holds twice
  RowRefused,       // a section whose nickname is there already, or that fits no table
  MissingRing,      // a trade lane that leads to a ring that is not there
  MissingPosition,  // a jump that leads to an object without a position
  MissingPackage,   // a ship without hull or package
  Other
};

struct LogEntry {
  LogKind Kind = LogKind::Other;
  std::string File;      // as the entry names it; empty where it names none
  std::string Nickname;  // of the thing that it is about; empty where it names none
  std::string Text;      // the whole entry
};

// What an entry of the data log says. Every text has an answer.
LogEntry ParseLogEntry(std::string_view entry);

// Where the log of a universe file is kept.
std::filesystem::path LogFileOf(const std::filesystem::path& universeFile);

// Keeps the entries beside their universe file; false if that cannot be written.
bool SaveLog(const std::filesystem::path& universeFile, const std::vector<std::string>& entries);

// The entries kept beside a universe file; none where there are none.
std::vector<std::string> ReadSavedLog(const std::filesystem::path& universeFile);

}  // namespace orrerix
