// SPDX-License-Identifier: MIT
#include "import/game_plan.h"

#include <fmt/format.h>

#include "db/failure.h"
#include "db/rows/recordset.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

using PathIn = std::string (*)(const GameFolder&, std::string_view);

// Reads the tables; a table that cannot be read has no rows.
class PlanTables {
 public:
  PlanTables(Database& database, const GameFolder& game) : database_(database), game_(game) {}

  Recordset Rows(std::string_view table) {
    return database_.OpenRows(quiet_, table, RecordsetType::Snapshot);
  }

  // The files that a field of a table names.
  std::vector<std::string> Files(std::string_view table, std::string_view field, PathIn path) {
    std::vector<std::string> files;
    for (Recordset rows = Rows(table); !rows.AtEnd() && files.size() < kMostPlannedFiles;
         rows.MoveNext()) {
      files.push_back(path(game_, rows[field].Get().Text()));
    }
    return files;
  }

 private:
  Database& database_;
  const GameFolder& game_;
  IgnoreFailures quiet_;
};

}  // namespace

std::string ProgramPath(const GameFolder& game, std::string_view file) {
  return fmt::format("{}\\exe\\{}", game.Text(), file);
}

std::string DataPath(const GameFolder& game, std::string_view file) {
  return fmt::format("{}\\data\\{}", game.Text(), file);
}

std::string UniversePath(const GameFolder& game, std::string_view file) {
  return fmt::format("{}\\data\\universe\\{}", game.Text(), file);
}

bool StandsForSystems(std::string_view type) {
  return Ucase(type) == "BASES";
}

std::vector<std::string> PlannedFiles(Database& database, const GameFolder& game) {
  PlanTables tables(database, game);
  const std::vector<std::string> systems = tables.Files("Systems", "file", UniversePath);
  std::vector<std::string> files = tables.Files("resources", "DLL", ProgramPath);
  for (Recordset rows = tables.Rows("DataFiles"); !rows.AtEnd() && files.size() < kMostPlannedFiles;
       rows.MoveNext()) {
    if (StandsForSystems(rows["type"].Get().Text())) {
      files.insert(files.end(), systems.begin(), systems.end());
    } else {
      files.push_back(DataPath(game, rows["pathfile"].Get().Text()));
    }
  }
  files.push_back(DataPath(game, kCharacterFile));
  return files;
}

}  // namespace orrerix
