// SPDX-License-Identifier: MIT
#include "db/engine/connection.h"

#include <array>
#include <filesystem>
#include <functional>
#include <new>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "db/engine/engine.h"
#include "db/rows/field_of.h"
#include "support/failure_sinks.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// While it lives, the engine gets no memory after so many more allocations. The engine starts
// afresh with it, so no database may be open before and after it.
class EngineMemory {
 public:
  EngineMemory() {
    sqlite3_shutdown();
    sqlite3_config(SQLITE_CONFIG_GETMALLOC, &real_);
    sqlite3_mem_methods counting = real_;
    counting.xMalloc = [](int size) { return IsGiven() ? real_.xMalloc(size) : nullptr; };
    counting.xRealloc = [](void* memory, int size) {
      return IsGiven() ? real_.xRealloc(memory, size) : nullptr;
    };
    sqlite3_config(SQLITE_CONFIG_MALLOC, &counting);
  }
  EngineMemory(const EngineMemory&) = delete;
  EngineMemory& operator=(const EngineMemory&) = delete;
  ~EngineMemory() {
    SuffersNoLack();
    sqlite3_shutdown();
    sqlite3_config(SQLITE_CONFIG_MALLOC, &real_);
  }

  void LastsFor(int allocations) { left_ = allocations; }
  void SuffersNoLack() { left_ = -1; }

 private:
  static bool IsGiven() {
    if (left_ < 0) return true;
    if (left_ == 0) return false;
    --left_;
    return true;
  }

  inline static sqlite3_mem_methods real_ = {};
  inline static int left_ = -1;  // any number
};

// Two rows with texts that the engine needs memory to show: they stand in the file as UTF-16, and
// are longer than what it keeps ready.
const std::string kLongText(5000, 'x');

class LackOfMemory : public ::testing::Test {
 protected:
  LackOfMemory() {
    const std::filesystem::path file = folder.Path() / "wide.db";
    sqlite3* wide = nullptr;
    sqlite3_open(file.string().c_str(), &wide);
    const std::string rows = "('" + kLongText + "'), ('" + kLongText + "')";
    sqlite3_exec(wide,
                 ("PRAGMA encoding = 'UTF-16le'; CREATE TABLE t (name MEMO TEXT); "
                  "INSERT INTO t VALUES " +
                  rows)
                     .c_str(),
                 nullptr, nullptr, nullptr);
    sqlite3_close(wide);
    db = DBEngine::OpenDatabase(mustWork, file);
    EXPECT_TRUE(db.HasTable("t"));  // its definition is known from now on
  }

  TempFolder folder;
  EngineMemory memory;
  FailTest mustWork;
  Database db;
};

TEST_F(LackOfMemory, AColumnWithoutMemoryForItsTextThrows) {
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(db.Native(), "SELECT name FROM t", -1, &statement, nullptr);
  const PreparedStatement rows(statement);
  ASSERT_EQ(sqlite3_step(statement), SQLITE_ROW);

  memory.LastsFor(0);

  EXPECT_THROW(Column(statement, 0), std::bad_alloc);
}

TEST_F(LackOfMemory, ATablesDefinitionComesWholeOrNotAtAll) {
  const std::filesystem::path file = folder.Path() / "goods.db";
  DBEngine::CreateDatabase(mustWork, file, JetVersionOption::Version40)
      .CreateTable(mustWork, {"goods",
                              {Of("name", FieldType::Text), Of("price", FieldType::Long)},
                              Index{"key", {"name"}}});
  using Asking = std::function<void(Database&, FailureSink&)>;
  const std::array<Asking, 2> askings = {
      [](Database& goods, FailureSink& sink) { goods.TableDefs(sink); },
      [](Database& goods, FailureSink& sink) { goods.OpenTable(sink, "goods"); }};
  for (const Asking& ask : askings) {
    bool lacked = true;
    for (int allocations = 0; lacked && allocations < 10000; ++allocations) {
      RecordFailures failures;
      Database goods = DBEngine::OpenDatabase(mustWork, file);
      memory.LastsFor(allocations);
      ask(goods, failures);
      memory.SuffersNoLack();

      lacked = !failures.Numbers().empty();
      EXPECT_THAT(failures.Numbers(), AnyOf(IsEmpty(), ElementsAre(failure_number::kOutOfMemory)));
      const std::vector<TableDef> known = goods.TableDefs(mustWork);
      ASSERT_EQ(known.size(), 1U) << allocations;
      EXPECT_EQ(known[0].Fields.size(), 2U) << allocations;
      EXPECT_TRUE(known[0].PrimaryKey) << allocations;
    }
    EXPECT_FALSE(lacked);
  }
}

TEST_F(LackOfMemory, RowsComeWholeOrNotAtAll) {
  using Opening = std::function<Recordset(FailureSink&)>;
  const auto ask = [this](FailureSink& sink, RecordsetType type) {
    return db.OpenRecordset(sink, "SELECT * FROM t", {}, type);
  };
  const std::array<Opening, 3> openings = {
      [&](FailureSink& sink) { return ask(sink, RecordsetType::Snapshot); },
      [&](FailureSink& sink) { return ask(sink, RecordsetType::Dynaset); },
      [&](FailureSink& sink) {
        return db.OpenRows(sink, "t", {1, 2});
      }};
  for (const Opening& open : openings) {
    open(mustWork);  // statements are prepared once: only the rows need memory from now on
    bool lacked = true;
    for (int allocations = 0; lacked && allocations < 1000; ++allocations) {
      RecordFailures failures;
      memory.LastsFor(allocations);
      Recordset rows = open(failures);
      memory.SuffersNoLack();

      lacked = !failures.Numbers().empty();
      EXPECT_THAT(failures.Numbers(), AnyOf(IsEmpty(), ElementsAre(failure_number::kOutOfMemory)));
      EXPECT_EQ(rows.RecordCount(), lacked ? 0U : 2U);
      for (; !rows.AtEnd(); rows.MoveNext()) EXPECT_EQ(rows["name"].Get(), kLongText);
    }
    EXPECT_FALSE(lacked);
  }
}

TEST(Column, GivesEachContentAsItIs) {
  FailTest mustWork;
  Database db = DBEngine::CreateInMemory(mustWork);
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(db.Native(), "SELECT 7, 0.5, NULL, 'a', '', x''", -1, &statement, nullptr);
  const PreparedStatement rows(statement);
  ASSERT_EQ(sqlite3_step(statement), SQLITE_ROW);

  EXPECT_EQ(Column(statement, 0), HeldRows::Cell(std::int64_t{7}));
  EXPECT_EQ(Column(statement, 1), HeldRows::Cell(0.5));
  EXPECT_EQ(Column(statement, 2), HeldRows::Cell(Null{}));
  EXPECT_EQ(Column(statement, 3), HeldRows::Cell(std::string_view("a")));
  EXPECT_EQ(Column(statement, 4), HeldRows::Cell(std::string_view()));
  EXPECT_EQ(Column(statement, 5), HeldRows::Cell(std::string_view()));
  EXPECT_EQ(ColumnText(statement, 0) + ColumnText(statement, 1) + ColumnText(statement, 2), "70.5");
}

}  // namespace
}  // namespace orrerix
