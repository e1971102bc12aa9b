// SPDX-License-Identifier: MIT
#include "db/engine/working_copy.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <sqlite3.h>

#include "db/engine/engine.h"
#include "platform/file_time.h"
#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

struct Lookup {
  std::string_view Table;
  std::string_view Expression;
};

// What the readers' queries look up.
constexpr std::array kLookups = {
    Lookup{"Systems", "pos"},
    Lookup{"Systems", "ucase(nickname) COLLATE NOCASE"},
    Lookup{"Objects", "ucase(nickname) COLLATE NOCASE"},
    Lookup{"Objects", "ucase(dock_with) COLLATE NOCASE"},
    Lookup{"DockObjects", "ucase(nickname) COLLATE NOCASE"},
    Lookup{"DockObjects", "realname"},
    Lookup{"commodity", "ucase(nickname) COLLATE NOCASE"},
    Lookup{"Goods", "ucase(nickname) COLLATE NOCASE"},
    Lookup{"Goods", "realname"},
    Lookup{"Goods", "ucase(hull) COLLATE NOCASE"},
    Lookup{"Goods", "ucase(ship) COLLATE NOCASE"},
    Lookup{"BaseGoods", "ucase(Base) COLLATE NOCASE"},
    Lookup{"BaseGoods", "ucase(GoodNick) COLLATE NOCASE"},
    Lookup{"BaseGoodPrices", "ucase(BaseNick) COLLATE NOCASE"},
    Lookup{"BaseGoodPrices", "ucase(GoodNick) COLLATE NOCASE, Price"},
    Lookup{"Groups", "ucase(NickName) COLLATE NOCASE"},
    Lookup{"Ships", "ucase(NickName) COLLATE NOCASE"},
    Lookup{"Ships", "ucase(packagename) COLLATE NOCASE"},
    Lookup{"Ships", "RealName"},
    Lookup{"Loadout_Cargo", "ucase(NickName) COLLATE NOCASE"},
    Lookup{"GF_NPC", "ucase(BaseNick) COLLATE NOCASE"},
    Lookup{"GF_NPC", "ucase(bribe) COLLATE NOCASE"},
    Lookup{"ids_name", "ID"},
    Lookup{"ids_info", "ID"},
    Lookup{"gun", "ucase(nickname) COLLATE NOCASE"},
    Lookup{"munition", "ucase(nickname) COLLATE NOCASE"},
    Lookup{"shieldgenerator", "ucase(nickname) COLLATE NOCASE"},
};

// Copies all pages; the engine's code of what became of it.
int CopyPages(sqlite3* from, sqlite3* to) {
  sqlite3_backup* backup = sqlite3_backup_init(to, "main", from, "main");
  if (backup == nullptr) return sqlite3_errcode(to);
  sqlite3_backup_step(backup, -1);
  return sqlite3_backup_finish(backup);
}

Failure CannotCopy(int code, const fs::path& path) {
  if ((code & 0xFF) == SQLITE_IOERR) {
    return EngineFailure(failure_number::kCannotOpenFile,
                         fmt::format("Could not read file '{}'.", TextOf(path)));
  }
  return EngineFailure(failure_number::kUnrecognizedFormat,
                       fmt::format("Unrecognized database format '{}'.", TextOf(path)));
}

// Whether there is the column that an index would be on.
bool HasColumn(const Database& database, std::string_view table, std::string_view expression) {
  if (!database.HasTable(table)) return false;
  const std::size_t open = expression.find('(');
  const std::string_view column =
      open == std::string_view::npos ? expression
                                     : expression.substr(open + 1, expression.find(')') - open - 1);
  return database.HasField(table, column);
}

// The statements for all indexes, before any of them changes the schema that is looked at here.
std::vector<std::string> IndexStatements(const Database& database) {
  std::vector<std::string> statements;
  statements.reserve(kLookups.size());
  for (const Lookup& lookup : kLookups) {
    if (!HasColumn(database, lookup.Table, lookup.Expression)) continue;
    statements.push_back(fmt::format("CREATE INDEX lookup_{} ON {} ({})", statements.size(),
                                     lookup.Table, lookup.Expression));
  }
  return statements;
}

}  // namespace

WorkingCopy::Stamp WorkingCopy::StampOf(const fs::path& path) {
  Stamp stamp;
  std::error_code error;
  stamp.Path = path;
  stamp.Size = fs::file_size(path, error);
  stamp.Changed = LastChanged(path, error);
  return stamp;
}

Database& WorkingCopy::Of(FailureSink& sink, const fs::path& path) {
  const Stamp stamp = StampOf(path);
  if (copy_.IsOpen() && stamp == stamp_) return copy_;
  Drop();
  Database file = DBEngine::OpenDatabase(sink, path);
  if (!file.IsOpen()) return copy_;
  copy_ = DBEngine::CreateInMemory(sink);
  if (const int code = CopyPages(file.Native(), copy_.Native()); code != SQLITE_OK) {
    Drop();
    sink.Fail(CannotCopy(code, path));
    return copy_;
  }
  for (const std::string& statement : IndexStatements(copy_)) {
    copy_.ExecuteNative(sink, statement);
  }
  stamp_ = stamp;
  return copy_;
}

void WorkingCopy::Drop() {
  copy_.Close();
  stamp_ = {};
}

}  // namespace orrerix
