// SPDX-License-Identifier: MIT
#include "db/engine/connection.h"

#include <new>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "db/engine/engine.h"
#include "support/failure_sinks.h"

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

// The engine needs memory to show the texts of this database, more than it keeps ready.
constexpr std::string_view kWideTexts = "PRAGMA encoding = 'UTF-16le'";
const std::string kLongText(5000, 'x');

class LackOfMemory : public ::testing::Test {
 protected:
  LackOfMemory() {
    db = DBEngine::CreateInMemory(mustWork);
    db.ExecuteNative(mustWork, std::string(kWideTexts));
    db.CreateTable(mustWork, {"t", {Field{"name", FieldType::Memo}}, {}});
    Recordset rows = db.OpenTable(mustWork, "t");
    rows.AddNew();
    rows["name"] = kLongText;
    rows.Update();
  }

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

TEST_F(LackOfMemory, RowsComeWholeOrNotAtAll) {
  for (const RecordsetType type : {RecordsetType::Snapshot, RecordsetType::Dynaset}) {
    bool lacked = true;
    for (int allocations = 0; lacked && allocations < 1000; ++allocations) {
      RecordFailures failures;
      memory.LastsFor(allocations);
      Recordset rows = db.OpenRecordset(failures, "SELECT * FROM t", {}, type);
      memory.SuffersNoLack();

      lacked = !failures.Numbers().empty();
      EXPECT_THAT(failures.Numbers(), AnyOf(IsEmpty(), ElementsAre(failure_number::kOutOfMemory)));
      EXPECT_EQ(rows.Empty(), lacked);
      if (!lacked) {
        EXPECT_EQ(rows["name"].Get(), kLongText);
      }
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
