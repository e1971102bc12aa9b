// SPDX-License-Identifier: MIT
// Operations on whole database files.
#pragma once

#include <filesystem>
#include <optional>

#include "db/database.h"
#include "db/failure.h"

namespace orrerix {

// The two formats that a file could be created in. One engine stands behind both; the number is
// kept in the file's header (user_version).
enum class JetVersionOption { Version30 = 32, Version40 = 64 };

// What a file is opened for.
enum class FileUse {
  Sharing,  // with other programs, safe against a loss of power
  // By the only one who has it open, to fill it with values that were tested before: it stays
  // locked from the first question to the end, much of it is kept in memory, and the checks of its
  // fields are not repeated.
  Filling,
  // The same, and trades safety against loss of power for speed: for files that are thrown away if
  // they are not finished. Keys work as ever; what was written is not taken back.
  Building
};

class DBEngine {
 public:
  // Creates a new file. Fails with 3204 if there is one, with 3024 if it cannot be made.
  static Database CreateDatabase(FailureSink& sink, const std::filesystem::path& path,
                                 JetVersionOption option, FileUse use = FileUse::Sharing);

  // Opens an existing file. Fails with 3024 if it is not there and with 3343 if it is no database.
  static Database OpenDatabase(FailureSink& sink, const std::filesystem::path& path,
                               FileUse use = FileUse::Sharing);

  // Writes a copy of `from` to `to`, without unused pages. If there are none, the file
  // is renamed. `from` is gone afterwards in that case only.
  static void CompactDatabase(FailureSink& sink, const std::filesystem::path& from,
                              const std::filesystem::path& to);

  // A database in memory.
  static Database CreateInMemory(FailureSink& sink);
};

}  // namespace orrerix
