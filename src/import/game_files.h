// SPDX-License-Identifier: MIT
#pragma once

#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "import/read_ahead.h"
#include "import/whole_file.h"
#include "platform/game_path.h"

namespace orrerix {

// A file as it was found: its bytes, or nothing where it may not be read or is too long.
struct FoundFile {
  std::optional<WholeFile> Whole;
};

// The game's files as an import reads them. Where opening a file means waiting (kOpeningWaits),
// those that are known to follow are read ahead.
class GameFiles {
 public:
  // The folder must outlive this.
  explicit GameFiles(const GameFolder& folder) : folder_(folder) {}

  // These paths will be read next, in this order; some may be left out. What was expected before is
  // not any more.
  void Expect(std::vector<std::string> paths);

  // The file of a path as GameFolder::OpenFile finds it, of at most so many bytes; nothing if there
  // is none. One that was expected may be as it was when the file before it was read.
  std::optional<FoundFile> Read(
      const std::string& path, std::streamoff longest = std::numeric_limits<std::streamoff>::max());

 private:
  const GameFolder& folder_;
  std::optional<ReadAhead> ahead_;
};

}  // namespace orrerix
