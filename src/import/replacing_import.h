// SPDX-License-Identifier: MIT
// An import that leaves the older universe file in use until the new one is finished.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <vector>

#include "import/import_driver.h"

namespace orrerix {

// The import cannot begin, or its file cannot take its place. The text is one line that names the
// file or folder.
struct CannotReplace : std::runtime_error {
  using std::runtime_error::runtime_error;
};

struct ReplacementOrder {
  const GameFolder& Game;
  std::filesystem::path Target;  // the universe file; its folder is there
  JetVersionOption Format = JetVersionOption::Version30;
  AppVersion Version;
};

// Imports in a folder of its own beside the target, which is replaced in one step once all is done.
// An import that is given up, or that `host` ends, leaves the target as it was; its answer is then
// not Finished. Throws CannotReplace if another process uses the target, or if that step is
// refused.
ImportResult ReplaceUniverse(ErrorLog& log, ImportHost& host, const ReplacementOrder& order,
                             const std::vector<DerivedStage>& stages);

}  // namespace orrerix
