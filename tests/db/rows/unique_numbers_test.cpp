// SPDX-License-Identifier: MIT
#include "db/rows/unique_numbers.h"

#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "db/engine/engine.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

// Gives the numbers of a list in their order, then the next whole numbers.
UniqueNumbers::Source Listed(std::vector<std::uint32_t> numbers) {
  return [numbers = std::move(numbers), next = std::size_t{0}]() mutable {
    return next < numbers.size() ? numbers[next++] : static_cast<std::uint32_t>(1000 + next++);
  };
}

TEST(UniqueNumbers, ANumberThatIsTakenIsDrawnAnew) {
  UniqueNumbers numbers(Listed({5, 5, 5, 8, 5, 9}));

  // A drawn number is the source's, plus 1.
  EXPECT_EQ(numbers.Draw(), 6);
  EXPECT_EQ(numbers.Draw(), 9);
  EXPECT_EQ(numbers.Draw(), 10);
}

TEST(UniqueNumbers, ANumberFromElsewhereIsNeverDrawn) {
  UniqueNumbers numbers(Listed({5, 7}));

  EXPECT_TRUE(numbers.Take(6));
  EXPECT_FALSE(numbers.Take(6));

  EXPECT_EQ(numbers.Draw(), 8);
}

TEST(UniqueNumbers, TheyArePositiveAndHave31Bits) {
  UniqueNumbers numbers(Listed({0, 2147483646, 2147483647, 4294967295}));

  EXPECT_EQ(numbers.Draw(), 1);
  EXPECT_EQ(numbers.Draw(), 2147483647);
  EXPECT_EQ(numbers.Draw(), 2);  // 2147483647 counts as 0, which is taken, and 4294967295 as 1
}

TEST(UniqueNumbers, ManyStayApart) {
  // Each number comes twice.
  UniqueNumbers numbers([next = 0u]() mutable { return next++ / 2; });
  for (std::int64_t i = 1; i <= 30000; ++i) ASSERT_EQ(numbers.Draw(), i);
}

// A table with a unique ID and a key, in memory.
class UniqueIDs : public ::testing::Test {
 protected:
  UniqueIDs() {
    Field id{"ID", FieldType::Long};
    id.IsUniqueID = true;
    table = {"t", {id, Field{"name"}}, Index{"name", {"name"}}};
    db = DBEngine::CreateInMemory(mustWork);
  }

  void Add(std::string_view name) {
    Recordset rows = db.OpenTable(mustWork, "t");
    rows.AddNew();
    rows["name"] = name;
    rows.Update();
  }

  std::vector<std::int64_t> IDs() {
    std::vector<std::int64_t> ids;
    for (Recordset rows = db.OpenRecordset(mustWork, "SELECT ID FROM t"); !rows.AtEnd();
         rows.MoveNext()) {
      ids.push_back(*rows["ID"].Get().Whole());
    }
    return ids;
  }

  FailTest mustWork;
  Database db;
  TableDef table;
};

TEST_F(UniqueIDs, AppendedRowsHaveNumbersOfTheirOwn) {
  db.DrawUniqueIDsFrom(Listed({5, 5, 8}));
  db.CreateTable(mustWork, table);

  Add("a");
  Add("b");

  EXPECT_THAT(IDs(), ElementsAre(6, 9));
}

TEST_F(UniqueIDs, RowsThatWereHeldHaveNumbersOfTheirOwn) {
  db.DrawUniqueIDsFrom(Listed({5, 5, 8, 8, 9}));
  db.CreateHeldTable(mustWork, table);
  Add("a");
  Add("b");

  db.WriteHeldRows(mustWork);
  Add("c");

  EXPECT_THAT(IDs(), ElementsAre(6, 9, 10));
}

TEST_F(UniqueIDs, NumbersThatStandInTheTableAreTaken) {
  db.CreateTable(mustWork, table);
  db.ExecuteNative(mustWork, "INSERT INTO t VALUES (6, 'old')");
  db.DrawUniqueIDsFrom(Listed({5, 8}));

  Add("a");

  EXPECT_THAT(IDs(), ElementsAre(6, 9));
}

TEST_F(UniqueIDs, ANumberThatIsGivenIsTaken) {
  db.DrawUniqueIDsFrom(Listed({5, 8}));
  db.CreateTable(mustWork, table);
  Recordset rows = db.OpenTable(mustWork, "t");
  rows.AddNew();
  rows["ID"] = 6;
  rows["name"] = "given";
  rows.Update();

  Add("a");

  EXPECT_THAT(IDs(), ElementsAre(6, 9));
}

}  // namespace
}  // namespace orrerix
