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

// Asks for the longest text of every Text field in one pass over the table.
TableDef Crunched(FailureSink& routine, Database& source, TableDef table) {
  std::string lengths;
  for (const Field& field : table.Fields) {
    if (field.Type != FieldType::Text) continue;
    if (!lengths.empty()) lengths += ", ";
    lengths += fmt::format("max(length({}))", QuoteName(field.Name));
  }
  table.PrimaryKey.reset();
  if (lengths.empty()) return table;
  Recordset longest = source.OpenRecordset(
      routine, "SELECT " + lengths + " from " + QuoteName(table.Name));
  std::size_t column = 0;
  for (Field& field : table.Fields) {
    if (field.Type != FieldType::Text) continue;
    const double length = longest.AtEnd() ? 0 : longest[column++].Get().Number();
    field.Size = length > 0 ? static_cast<std::size_t>(length) : kSizeOfEmptyField;
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
