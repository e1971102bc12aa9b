// SPDX-License-Identifier: MIT
#include "import/ini/ini_reader.h"

#include "db/engine/engine.h"
#include "db/schema.h"
#include "import/import_state.h"
#include "shell/error_log.h"
#include "support.h"

namespace {

using namespace orrerix;

// A game folder with the input as its one file.
const GameFolder& Game() {
  static const GameFolder game(OwnFolder().string());
  return game;
}

}  // namespace

// The input is a file of the game, read twice into one universe in memory.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  WriteBytes(OwnFolder() / "a.ini", InputText(data, size));
  NobodyThere messages;
  QuietHost host;
  IgnoreFailures ignore;
  ErrorLog log(messages, AppVersion{1, 0, 0});
  Database database = DBEngine::CreateInMemory(ignore);
  database.Begin(ignore);
  for (const TableDef& table : FixedTables()) database.CreateHeldTable(ignore, table);
  Import import{{log, database}, Game(), host, {}, {}};

  ReadINI(import, Game().Text() + "\\a.ini", "Li01");
  ReadINI(import, Game().Text() + "\\a.ini", "Li02");
  database.WriteHeldRows(ignore);
  for (const auto& table : import.Sections.Tables()) {
    const TableDef definition = table->Definition();
    database.CreateTable(ignore, definition);
    table->AppendTo(ignore, database, definition);
  }
  return 0;
}
