// SPDX-License-Identifier: MIT
#include "demo_universe.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include <fmt/format.h>

#include "db/rows/table_def.h"
#include "demo/demo_game.h"
#include "derived/stages.h"
#include "import/replacing_import.h"
#include "support.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

// What the map, its boxes and its searches read. The fewer tables, the more inputs in a second.
constexpr std::array<std::string_view, 20> kTables = {
    "Systems", "Objects",       "JumpNodes",       "TradeLanes",     "DockObjects",
    "Goods",   "BaseGoods",     "commodity",       "BaseGoodPrices", "Groups",
    "Ships",   "Loadout_Cargo", "GF_NPC",          "ids_name",       "ids_info",
    "gun",     "munition",      "shieldgenerator", "OXWarning",      "Version"};

// What cannot be made ends the process: there is nothing to fuzz then.
class MustWork : public FailureSink {
 public:
  void Fail(const Failure& failure) override {
    std::cerr << failure.Description << '\n';
    std::abort();
  }
};

}  // namespace

fs::path MakeDemoUniverse(int rows) {
  const fs::path folder = OwnFolder() / "game";
  WriteDemoGame(folder, 2);
  const fs::path file = OwnFolder() / "demo.fl";
  NobodyThere messages;
  ErrorLog log(messages, CurrentVersion());
  QuietHost host;
  const GameFolder game(folder.string());
  ReplaceUniverse(log, host, {game, file, JetVersionOption::Version30, CurrentVersion()},
                  DerivedStages());
  MustWork sink;
  Database universe = DBEngine::OpenDatabase(sink, file);
  for (const TableDef& table : universe.TableDefs(sink)) {
    const bool isRead = std::find(kTables.begin(), kTables.end(), table.Name) != kTables.end();
    if (!isRead) universe.ExecuteNative(sink, "DROP TABLE " + QuoteName(table.Name));
    if (!isRead) continue;
    universe.ExecuteNative(
        sink, fmt::format("DELETE FROM {} WHERE rowid > {}", QuoteName(table.Name), rows));
  }
  // Small pages: each input of some targets copies the whole file.
  universe.ExecuteNative(sink, "PRAGMA page_size = 512; VACUUM");
  return file;
}

}  // namespace orrerix
