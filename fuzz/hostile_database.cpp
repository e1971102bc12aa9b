// SPDX-License-Identifier: MIT
#include "hostile_database.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fstream>
#include <iterator>
#include <string_view>

#include <fmt/format.h>
#include <sqlite3.h>

#include "db/rows/table_def.h"
#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kEndless =
    "WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM c) SELECT x FROM c";

std::string TextLiteral(std::string_view text) {
  std::string hex;
  for (const char c : text) hex += fmt::format("{:02x}", static_cast<unsigned char>(c));
  return "CAST(x'" + hex + "' AS TEXT)";
}

std::string ValueLiteral(Steering& input) {
  switch (input.Below(12)) {
    case 0:
      return "NULL";
    case 1:
      return "9e999";
    case 2:
      return "-9e999";
    case 3:
      return "9223372036854775807";
    case 4:
      return "-2147483649";
    case 5:
      return "hex(zeroblob(40000))";
    case 6:
      return "zeroblob(7)";
    case 7:
      return "char(65, 0, 66)";
    case 8:
      return "1e300";
    case 9:
      return fmt::format("{}", input.Short());
    case 10:
      return fmt::format("{}", input.Short() / 100.0);
    default:
      return TextLiteral(input.Text());
  }
}

// Files that are not the file itself stay as they are, and nothing takes for ever.
int AuthorizeNoOtherFile(void*, int action, const char*, const char*, const char*, const char*) {
  return action == SQLITE_ATTACH ? SQLITE_DENY : SQLITE_OK;
}

bool IsVacuum(std::string_view statement) {
  constexpr std::string_view word = "vacuum";
  const auto same = [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; };
  return std::search(statement.begin(), statement.end(), word.begin(), word.end(), same) !=
         statement.end();
}

}  // namespace

HostileDatabase::HostileDatabase(const fs::path& sample) {
  std::ifstream stream(sample, std::ios::binary);
  bytes_.assign(std::istreambuf_iterator<char>(stream), {});
  sqlite3* handle = nullptr;
  sqlite3_open_v2(TextOf(sample).c_str(), &handle, SQLITE_OPEN_READONLY, nullptr);
  const auto note = [](void* self, int, char** values, char**) {
    auto& tables = static_cast<HostileDatabase*>(self)->tables_;
    if (tables.empty() || tables.back().Name != values[0]) tables.push_back({values[0], {}});
    tables.back().Fields.emplace_back(values[1]);
    return 0;
  };
  sqlite3_exec(handle,
               "SELECT m.name, c.name FROM sqlite_master m, pragma_table_info(m.name) c "
               "WHERE m.type = 'table' ORDER BY m.rowid, c.cid",
               note, this, nullptr);
  sqlite3_close(handle);
}

std::string HostileDatabase::Statement(Steering& input) const {
  const Table& of = tables_[input.Below(tables_.size())];
  const std::string table = QuoteName(of.Name);
  const std::string field = QuoteName(of.Fields[input.Below(of.Fields.size())]);
  switch (input.Below(16)) {
    case 0:
      return std::string(input.Text());
    case 1:
      return "DROP TABLE " + table;
    case 2:
      return fmt::format("DROP TABLE {0}; CREATE VIEW {0} AS {1}", table, kEndless);
    case 3:
      return fmt::format("ALTER TABLE {0} RENAME TO old; CREATE VIEW {0} AS SELECT * FROM old",
                         table);
    case 4:
      return fmt::format("CREATE TRIGGER t{} {} INSERT ON {} BEGIN SELECT count(*) FROM ({}); END",
                         input.Byte(), input.Below(2) == 0 ? "BEFORE" : "AFTER", table, kEndless);
    case 5:
      return fmt::format("CREATE TRIGGER u{} AFTER UPDATE ON {} BEGIN DELETE FROM {}; END",
                         input.Byte(), table, table);
    case 6:
      return fmt::format("ALTER TABLE {} DROP COLUMN {}", table, field);
    case 7:
      return fmt::format("ALTER TABLE {} RENAME COLUMN {} TO {}", table, field,
                         QuoteName(input.Text()));
    case 8:
      return fmt::format("DELETE FROM {}", table);
    case 9:
      return fmt::format("INSERT INTO {0} SELECT * FROM {0}", table);
    case 10:
      return fmt::format(
          "DROP TABLE {0}; CREATE TABLE {0} (a, {1} AS ({2})); "
          "INSERT INTO {0} VALUES (1)",
          table, field, input.Below(2) == 0 ? "hex(zeroblob(400000000))" : "randomblob(9)");
    case 11:
      return fmt::format("DROP TABLE {0}; CREATE VIRTUAL TABLE {0} USING {1}", table,
                         input.Below(2) == 0 ? "fts5(" + field + ")" : "rtree(a, b, c)");
    case 12:
      return fmt::format("PRAGMA writable_schema = ON; UPDATE sqlite_master SET {} = {}",
                         std::array{"sql", "name", "rootpage", "type"}[input.Below(4)],
                         ValueLiteral(input));
    case 13:
      return fmt::format("CREATE UNIQUE INDEX i{} ON {} ({}) WHERE {} > 1", input.Byte(), table,
                         field, field);
    default:
      return fmt::format("UPDATE {} SET {} = {}", table, field, ValueLiteral(input));
  }
}

void HostileDatabase::Write(const fs::path& file, Steering& input) const {
  WriteBytes(file, bytes_);
  sqlite3* handle = nullptr;
  sqlite3_open_v2(TextOf(file).c_str(), &handle, SQLITE_OPEN_READWRITE, nullptr);
  sqlite3_set_authorizer(handle, AuthorizeNoOtherFile, nullptr);
  sqlite3_limit(handle, SQLITE_LIMIT_LENGTH, 1 << 20);
  sqlite3_exec(handle, "PRAGMA synchronous = OFF; PRAGMA journal_mode = MEMORY", nullptr, nullptr,
               nullptr);
  for (std::size_t count = 1 + input.Below(4); count > 0; --count) {
    const std::string statement = Statement(input);
    if (IsVacuum(statement)) continue;
    int calls = 0;
    const auto stop = [](void* seen) { return ++*static_cast<int*>(seen) > 20 ? 1 : 0; };
    sqlite3_progress_handler(handle, 1000, stop, &calls);
    sqlite3_exec(handle, statement.c_str(), nullptr, nullptr, nullptr);
  }
  sqlite3_close(handle);
  if (input.Below(4) != 1) return;
  std::fstream bytes(file, std::ios::binary | std::ios::in | std::ios::out);
  bytes.seekp(static_cast<std::uint16_t>(input.Short()));
  bytes.put(static_cast<char>(input.Byte()));
}

}  // namespace orrerix
