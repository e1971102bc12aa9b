// SPDX-License-Identifier: MIT
// The indexed copy of a finished file that the program's reads run on.
#pragma once

#include <filesystem>

#include "db/database.h"
#include "db/failure.h"

namespace orrerix {

// A database file carries no keys. Readers ask a copy of it in memory that has indexes on what the
// queries look up; the copy is rebuilt when the file has changed.
class WorkingCopy {
 public:
  // The copy of the file as it is now, recognised by path, size and time of change. If the file
  // cannot be read the failure goes to the sink and the copy is closed.
  Database& Of(FailureSink& sink, const std::filesystem::path& path);

  // Forgets the copy, so that the next reader makes a new one.
  void Drop();

 private:
  struct Stamp {
    std::filesystem::path Path;
    std::uintmax_t Size = 0;
    std::filesystem::file_time_type Changed;
    bool operator==(const Stamp&) const = default;
  };
  static Stamp StampOf(const std::filesystem::path& path);

  Database copy_;
  Stamp stamp_;
};

}  // namespace orrerix
