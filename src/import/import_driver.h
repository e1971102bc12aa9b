// SPDX-License-Identifier: MIT
// The whole import: from the game's folder to the finished "Orrerix.fl".
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>
#include <vector>

#include "db/engine/engine.h"
#include "import/import_state.h"
#include "import/resources/crunching.h"
#include "shell/version.h"

namespace orrerix {

// A calculation on what the files gave, with the text that is shown meanwhile.
struct DerivedStage {
  TextId Text;
  std::function<void(Universe&, ImportHost&)> Calculate;
};

// What an import needs to know.
struct ImportOrder {
  const GameFolder& Game;
  std::filesystem::path SaveFolder;
  JetVersionOption Format = JetVersionOption::Version30;
  AppVersion Version;
};

struct ImportResult {
  // False if the user gave the import up; the file then has no table `Version`, and the next start
  // throws it away.
  bool Finished = false;
  // Those of the finished file, in the order of their making; none without one.
  std::vector<TableCount> Tables;
};

// Runs all stages in their order on `database`, which is open on the finished file at the end. A
// universe file that is there already is not replaced: its tables then clash.
ImportResult ImportGame(ErrorLog& log, ImportHost& host, Database& database,
                        const ImportOrder& order, const std::vector<DerivedStage>& stages);

}  // namespace orrerix
