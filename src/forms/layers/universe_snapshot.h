// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryFile>
#include <filesystem>

#include "db/database.h"

namespace orrerix {

// A universe file as it is now, to be read at leisure: the file itself is not kept open, so that an
// import may replace it meanwhile. The copy goes with this.
class UniverseSnapshot {
 public:
  // A file that cannot be read is a failure of `sink`.
  UniverseSnapshot(FailureSink& sink, const std::filesystem::path& file);

  const Database& Data() const { return data_; }

 private:
  QTemporaryFile copy_;
  Database data_;  // closed before the copy goes
};

}  // namespace orrerix
