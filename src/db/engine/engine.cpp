// SPDX-License-Identifier: MIT
#include "db/engine/engine.h"

#include <memory>

#include <fmt/format.h>
#include <sqlite3.h>

#include "db/engine/connection.h"
#include "db/engine/engine_functions.h"
#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

// The engine counts its memory under a lock that one thread has no use for.
bool ConfigureEngine() {
  return sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0) == SQLITE_OK;
}

// The engine's layer for paths of any length, where there is more than one layer.
const char* FileLayer() {
  constexpr const char* longPaths = "win32-longpath";
  return sqlite3_vfs_find(longPaths) == nullptr ? nullptr : longPaths;
}

// A file may come from anybody. It holds tables and nothing that runs: no views, no triggers, no
// tables that other code makes up, and no value beyond what a file of the program could have.
void TrustNothing(sqlite3* handle) {
  constexpr int longestValue = 256 << 20;  // bytes
  for (const int permission : {SQLITE_DBCONFIG_ENABLE_VIEW, SQLITE_DBCONFIG_ENABLE_TRIGGER,
                               SQLITE_DBCONFIG_TRUSTED_SCHEMA}) {
    sqlite3_db_config(handle, permission, 0, nullptr);
  }
  sqlite3_drop_modules(handle, nullptr);
  sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, longestValue);
}

void Run(Connection& connection, const std::string& statement) {
  if (sqlite3_exec(connection.Handle(), statement.c_str(), nullptr, nullptr, nullptr) !=
      SQLITE_OK) {
    throw connection.LastFailure();
  }
}

// Comes before the first question, so that the file is locked once.
void PrepareFor(FileUse use, Connection& connection) {
  if (use == FileUse::Sharing) return;
  Run(connection,
      "PRAGMA locking_mode = EXCLUSIVE; PRAGMA temp_store = MEMORY; "
      "PRAGMA ignore_check_constraints = ON; PRAGMA cache_size = -16384");
  if (use == FileUse::Filling) return;
  // Needs no rollback: a statement checks its keys before it writes.
  Run(connection, "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF");
  connection.IndexNames();
}

std::shared_ptr<Connection> Connect(const fs::path& path, int flags,
                                    FileUse use = FileUse::Sharing) {
  [[maybe_unused]] static const bool kConfigured = ConfigureEngine();
  sqlite3* handle = nullptr;
  const int result = sqlite3_open_v2(TextOf(SystemPath(path)).c_str(), &handle,
                                     flags | SQLITE_OPEN_NOMUTEX, FileLayer());
  auto connection = std::make_shared<Connection>(handle, path);
  if (result != SQLITE_OK) {
    throw EngineFailure(failure_number::kCannotOpenFile,
                        fmt::format("Could not open file '{}'.", TextOf(path)));
  }
  sqlite3_extended_result_codes(handle, 1);
  TrustNothing(handle);
  RegisterEngineFunctions(handle);
  PrepareFor(use, *connection);
  return connection;
}

// A text in the quotes of the engine's language, inner quotes doubled.
std::string TextLiteral(const std::string& text) {
  std::string literal = "'";
  for (char c : text) {
    if (c == '\'') literal += c;
    literal += c;
  }
  return literal + "'";
}

template <typename Open>
Database Guarded(FailureSink& sink, Open&& open) {
  std::optional<Failure> failed;
  try {
    return Database(open());
  } catch (...) {
    failed = CaughtFailure();
  }
  sink.Fail(*failed);
  return Database();
}

}  // namespace

Database DBEngine::CreateDatabase(FailureSink& sink, const fs::path& path, JetVersionOption option,
                                  FileUse use) {
  return Guarded(sink, [&] {
    std::error_code ignored;
    if (fs::exists(path, ignored)) {
      throw EngineFailure(failure_number::kDatabaseExists,
                          fmt::format("Database '{}' already exists.", TextOf(path)));
    }
    auto connection = Connect(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, use);
    // A file that holds nothing yet has nothing to lose with the power.
    Run(*connection, fmt::format("PRAGMA synchronous = OFF; PRAGMA user_version = {}",
                                 static_cast<int>(option)));
    if (use != FileUse::Building) Run(*connection, "PRAGMA synchronous = FULL");
    return connection;
  });
}

Database DBEngine::OpenDatabase(FailureSink& sink, const fs::path& path, FileUse use) {
  return Guarded(sink, [&] {
    auto connection = Connect(path, SQLITE_OPEN_READWRITE, use);
    // SQLite opens anything; reading the head of the file shows whether it is a database, and takes
    // the same time for any number of tables.
    Run(*connection, "PRAGMA schema_version");
    return connection;
  });
}

Database DBEngine::CreateInMemory(FailureSink& sink) {
  return Guarded(sink, [] {
    return Connect(":memory:", SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_MEMORY);
  });
}

void DBEngine::CompactDatabase(FailureSink& sink, const fs::path& from, const fs::path& to) {
  Database source = OpenDatabase(sink, from);
  if (!source.IsOpen()) return;
  if (source.FreePages(sink) > 0) {
    source.ExecuteNative(sink, "VACUUM INTO " + TextLiteral(TextOf(SystemPath(to))));
    return;
  }
  source.Close();
  std::error_code error;
  fs::rename(SystemPath(from), SystemPath(to), error);
  if (error) {
    sink.Fail(EngineFailure(failure_number::kCannotOpenFile,
                            fmt::format("Could not rename '{}' to '{}': {}.", TextOf(from),
                                        TextOf(to), error.message())));
  }
}

}  // namespace orrerix
