// SPDX-License-Identifier: MIT
// An import beside what it cannot do without: reading the folder's bytes, and SQLite's inserts.
#include <fstream>
#include <memory>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include "bench_games.h"
#include "bench_sinks.h"
#include "db/engine/engine.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

void ReadAllBytes(benchmark::State& state, const BenchGame& game) {
  std::size_t bytes = 0;
  for (auto _ : state) {
    bytes = 0;
    for (const auto& entry : fs::recursive_directory_iterator(game.Folder)) {
      if (!entry.is_regular_file()) continue;
      std::ifstream file(entry.path(), std::ios::binary);
      std::string content(entry.file_size(), '\0');
      file.read(content.data(), static_cast<std::streamsize>(content.size()));
      bytes += content.size();
      benchmark::DoNotOptimize(content.data());
    }
  }
  state.counters["bytes"] = static_cast<double>(bytes);
}

struct StoredTable {
  TableDef Definition;
  std::vector<std::vector<Value>> Rows;
};

std::vector<StoredTable> LoadTables(const fs::path& file) {
  MustWork sink;
  Database database = DBEngine::OpenDatabase(sink, file);
  std::vector<StoredTable> tables;
  for (TableDef& definition : database.TableDefs(sink)) {
    StoredTable table{definition, {}};
    for (Recordset rows =
             database.OpenRecordset(sink, "SELECT * FROM " + QuoteName(definition.Name));
         !rows.AtEnd(); rows.MoveNext()) {
      std::vector<Value> row;
      for (std::size_t i = 0; i < definition.Fields.size(); ++i) row.push_back(rows[i].Get());
      table.Rows.push_back(std::move(row));
    }
    tables.push_back(std::move(table));
  }
  return tables;
}

void BindValue(sqlite3_stmt* statement, int parameter, const Value& value) {
  if (const auto* text = value.TextContent()) {
    sqlite3_bind_text64(statement, parameter, text->data(), text->size(), SQLITE_STATIC,
                        SQLITE_UTF8);
  } else if (const auto* whole = value.Whole()) {
    sqlite3_bind_int64(statement, parameter, *whole);
  } else if (const auto* real = value.Real()) {
    sqlite3_bind_double(statement, parameter, *real);
  } else {
    sqlite3_bind_null(statement, parameter);
  }
}

void InsertTable(sqlite3* handle, const StoredTable& table) {
  sqlite3_exec(handle, CreateStatement(table.Definition).c_str(), nullptr, nullptr, nullptr);
  std::string insert = "INSERT INTO " + QuoteName(table.Definition.Name) + " VALUES (?";
  for (std::size_t i = 1; i < table.Definition.Fields.size(); ++i) insert += ",?";
  insert += ")";
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(handle, insert.c_str(), -1, &statement, nullptr);
  for (const auto& row : table.Rows) {
    for (std::size_t i = 0; i < row.size(); ++i) {
      BindValue(statement, static_cast<int>(i) + 1, row[i]);
    }
    sqlite3_step(statement);
    sqlite3_reset(statement);
  }
  sqlite3_finalize(statement);
}

void InsertSameRows(benchmark::State& state, const BenchGame& game, const fs::path& work) {
  const std::vector<StoredTable> tables = LoadTables(ImportInto(game, work));
  const fs::path file = work / "inserted.db";
  std::size_t rows = 0;
  for (auto _ : state) {
    fs::remove(file);
    sqlite3* handle = nullptr;
    sqlite3_open(file.string().c_str(), &handle);
    sqlite3_exec(handle, "PRAGMA journal_mode = MEMORY; PRAGMA synchronous = OFF; BEGIN", nullptr,
                 nullptr, nullptr);
    rows = 0;
    for (const StoredTable& table : tables) {
      InsertTable(handle, table);
      rows += table.Rows.size();
    }
    sqlite3_exec(handle, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(handle);
  }
  state.counters["rows"] = static_cast<double>(rows);
}

void ImportAll(benchmark::State& state, const BenchGame& game, const fs::path& work) {
  for (auto _ : state) ImportInto(game, work);
}

}  // namespace

void RegisterImportBenchmarks(const std::vector<BenchGame>& games, const fs::path& work) {
  for (const BenchGame& game : games) {
    benchmark::RegisterBenchmark(("ReadAllBytes/" + game.Name).c_str(),
                                 [game](benchmark::State& state) { ReadAllBytes(state, game); })
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(
        ("InsertSameRows/" + game.Name).c_str(),
        [game, work](benchmark::State& state) { InsertSameRows(state, game, work); })
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark(("Import/" + game.Name).c_str(), [game,
                                                                   work](benchmark::State& state) {
      ImportAll(state, game, work);
    })->Unit(benchmark::kMillisecond);
  }
}

}  // namespace orrerix
