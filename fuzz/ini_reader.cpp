// SPDX-License-Identifier: MIT
#include "import/ini/ini_reader.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "db/engine/engine.h"
#include "db/schema.h"
#include "import/import_state.h"
#include "shell/error_log.h"

namespace {

namespace fs = std::filesystem;
using namespace orrerix;

class AlwaysOk : public MessageBoxes {
 public:
  MessageAnswer Show(const Message&) override { return MessageAnswer::Ok; }
};

class QuietHost : public ImportHost {
 public:
  void ShowText(std::string_view) override {}
  void AppendText(std::string_view) override {}
  void ProgressIt(std::int32_t, std::int32_t, const ImportProgress&) override {}
  void Yield() override {}
  void Pause(int) override {}
  MessageAnswer Show(const Message&) override { return MessageAnswer::Ignore; }
  std::uint32_t TickCount() override { return 0; }
  bool IsMinimised() const override { return true; }
  bool IsDebugging() const override { return false; }
};

// A game folder of this process's own, made once.
const fs::path& Game() {
  static const fs::path game = [] {
    std::string pattern = (fs::temp_directory_path() / "orrerix-fuzz-XXXXXX").string();
    return fs::path(mkdtemp(pattern.data()));
  }();
  return game;
}

}  // namespace

// The input is a file of the game, read twice into one universe in memory.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::ofstream(Game() / "a.ini", std::ios::binary)
      .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  AlwaysOk messages;
  QuietHost host;
  IgnoreFailures ignore;
  ErrorLog log(messages, AppVersion{1, 0, 0});
  Database database = DBEngine::CreateInMemory(ignore);
  database.Begin(ignore);
  for (const TableDef& table : FixedTables()) database.CreateHeldTable(ignore, table);
  const GameFolder game(Game().string());
  Import import{{log, database}, game, host, {}, {}};

  ReadINI(import, game.Text() + "\\a.ini", "Li01");
  ReadINI(import, game.Text() + "\\a.ini", "Li02");
  database.WriteHeldRows(ignore);
  for (const auto& table : import.Sections.Tables()) {
    const TableDef definition = table->Definition();
    database.CreateTable(ignore, definition);
    table->AppendTo(ignore, database, definition);
  }
  return 0;
}
