// SPDX-License-Identifier: MIT
#include "import/crunching.h"

#include <string>

#include <fmt/format.h>

#include "db/text.h"
#include "shell/routine.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr std::size_t kSizeOfEmptyField = 254;

// The table without its key, its Text fields as long as their longest text.
TableDef Crunched(FailureSink& routine, Database& source, TableDef table) {
  table.PrimaryKey.reset();
  const std::vector<std::size_t> longest = source.LongestTexts(routine, table);
  for (std::size_t i = 0; i < table.Fields.size(); ++i) {
    if (table.Fields[i].Type != FieldType::Text) continue;
    table.Fields[i].Size = longest[i] > 0 ? longest[i] : kSizeOfEmptyField;
  }
  return table;
}

std::string InfoOf(const fs::path& source, const fs::path& target) {
  return fmt::format(
      "While crunching the big database...\r\n\r\nSRC:[{}]\r\n\r\nDST:[{}]", source.string(),
      target.string());
}

}  // namespace

void CloseDB(Database& database, const fs::path& path) {
  if (Ucase(database.Path().string()) == Ucase(path.string())) database.Close();
}

void CleanUpMemory(ErrorLog& log, ImportHost& host, Database& database,
                   const fs::path& saveFolder) {
  Routine routine(log, "OrrerixMain.CleanUpMemory", "While cleaning up Memory");
  routine.Run([&] {
    const fs::path file = saveFolder / "Orrerix.fl";
    const fs::path aside = saveFolder / "Orrerix.ok";
    host.Yield();
    if (database.IsOpen() && database.FreePages(routine) == 0) {
      // There is nothing to give back; renaming the file there and back would change nothing.
      database.Commit(routine);
      database.Begin(routine);
      host.Yield();
      return;
    }
    CloseDB(database, file);
    routine.Try([&] {
      std::error_code error;
      fs::rename(file, aside, error);
      if (error) {
        throw Failure{failure_number::kPathFileAccess,
                      fmt::format("Path/File access error: cannot rename '{}': {}", file.string(),
                                  error.message())};
      }
    });
    DBEngine::CompactDatabase(routine, aside, file);
    std::error_code ignored;
    if (fs::exists(file, ignored)) fs::remove(aside, ignored);
    database = DBEngine::OpenDatabase(routine, file);
    database.UseForBuilding(routine);
    database.Begin(routine);
    host.Yield();
  });
}

void CrunchTXTFields(ErrorLog& log, const fs::path& source, const fs::path& target,
                     JetVersionOption option) {
  Routine routine(log, "DB_Work.CrunchTXTFields", InfoOf(source, target));
  routine.Run([&] {
    Database from = DBEngine::OpenDatabase(routine, source);
    std::error_code ignored;
    fs::remove(target, ignored);
    DBEngine::CreateDatabase(routine, target, option);
    from.Attach(routine, target);
    // One transaction: a process that dies on the way leaves a file without any table.
    from.Begin(routine);
    for (const TableDef& table : from.TableDefs(routine)) {
      if (Ucase(table.Name).starts_with("MSYS")) continue;
      from.CreateAttachedTable(routine, Crunched(routine, from, table));
      from.CopyToAttached(routine, table.Name);
    }
    from.Commit(routine);
  });
}

}  // namespace orrerix
