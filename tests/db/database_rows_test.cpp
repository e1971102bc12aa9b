// SPDX-License-Identifier: MIT
// Rows are found, shown and changed alike in a table in memory and in the file.
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "db/engine/engine.h"
#include "db/rows/field_of.h"
#include "support/failing_memory.h"
#include "support/failure_sinks.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

enum class Place { Memory, File };

class RowsOf : public ::testing::TestWithParam<Place> {
 protected:
  RowsOf() {
    db = DBEngine::CreateInMemory(mustWork);
    const TableDef goods{"goods",
                         {Of("name", FieldType::Text, true), Of("kind", FieldType::Text, true),
                          Of("price", FieldType::Long)},
                         Index{"key", {"name"}}};
    IsHeld() ? db.CreateHeldTable(mustWork, goods) : db.CreateTable(mustWork, goods);
  }

  static bool IsHeld() { return GetParam() == Place::Memory; }

  void Add(const Value& name, const Value& kind, const Value& price = {}) {
    Recordset rows = db.OpenTable(mustWork, "goods");
    rows.AddNew();
    rows["name"] = name;
    rows["kind"] = kind;
    rows["price"] = price;
    rows.Update();
  }

  static std::vector<std::string> Names(Recordset rows) {
    std::vector<std::string> names;
    for (; !rows.AtEnd(); rows.MoveNext()) names.push_back(rows["name"].Get().Text());
    return names;
  }

  std::vector<std::string> Named(std::string_view field, std::string_view text) {
    return Names(db.OpenRowsNamed(mustWork, "goods", {field, text}));
  }

  // Whether nothing that was asked wrote the table to the file.
  void ExpectStaysInItsPlace() { EXPECT_THAT(db.TakeHeldRows(), SizeIs(IsHeld() ? 1 : 0)); }

  FailTest mustWork;
  RecordFailures failures;
  Database db;
};

INSTANTIATE_TEST_SUITE_P(Places, RowsOf, ::testing::Values(Place::Memory, Place::File));

TEST_P(RowsOf, AWholeTableComeInTheirOrder) {
  for (const char* name : {"c", "a", "b"}) Add(name, "x");

  EXPECT_THAT(Names(db.OpenRows(mustWork, "goods")), ElementsAre("c", "a", "b"));
  EXPECT_THAT(Names(db.OpenRows(mustWork, "goods", RecordsetType::Snapshot)),
              ElementsAre("c", "a", "b"));
  ExpectStaysInItsPlace();
}

TEST_P(RowsOf, GivenNumbersComeInTheGivenOrder) {
  for (const char* name : {"c", "a", "b"}) Add(name, "x");

  EXPECT_THAT(Names(db.OpenRows(mustWork, "goods", {3, 1})), ElementsAre("b", "c"));
  ExpectStaysInItsPlace();
}

TEST_P(RowsOf, ANameAreFoundWhateverItsCase) {
  Add("Wine", "food");
  Add("wein", "FOOD");
  Add("größe", Value());
  Add("", "");

  EXPECT_THAT(Named("name", "WINE"), ElementsAre("Wine"));
  EXPECT_THAT(Named("kind", "Food"), ElementsAre("Wine", "wein"));
  EXPECT_THAT(Named("name", "GRÖßE"), ElementsAre("größe"));
  EXPECT_THAT(Named("kind", ""), ElementsAre(""));
  EXPECT_THAT(Named("kind", "fo"), IsEmpty());
  ExpectStaysInItsPlace();
}

TEST_P(RowsOf, TwoNamesMustHaveBoth) {
  Add("a", "food");
  Add("b", "food");
  const Database::NamedField food{"kind", "FOOD"};

  EXPECT_THAT(Names(db.OpenRowsNamed(mustWork, "goods", {"name", "B"}, food)), ElementsAre("b"));
  EXPECT_THAT(Names(db.OpenRowsNamed(mustWork, "goods", {"name", "c"}, food)), IsEmpty());
  ExpectStaysInItsPlace();
}

TEST_P(RowsOf, ANameAreFoundAfterRowsCameAndChanged) {
  Add("a", "food");
  EXPECT_THAT(Named("kind", "food"), ElementsAre("a"));

  Add("b", "food");
  Recordset first = db.OpenRows(mustWork, "goods");
  first.Edit();
  first["kind"] = "drink";
  first.Update();

  EXPECT_THAT(Named("kind", "food"), ElementsAre("b"));
  EXPECT_THAT(Named("kind", "drink"), ElementsAre("a"));
  ExpectStaysInItsPlace();
}

// The text of such a name becomes part of the query, as it does in a joined text.
TEST_P(RowsOf, ANameWithAnApostropheAreNoQuery) {
  Add("it's", "x");

  EXPECT_TRUE(db.OpenRowsNamed(failures, "goods", {"name", "it's"}).AtEnd());

  EXPECT_THAT(failures.Numbers(), ElementsAre(3075));
}

TEST_P(RowsOf, ATableThatIsNotThereFail) {
  EXPECT_TRUE(db.OpenRows(failures, "nowhere").AtEnd());
  EXPECT_TRUE(db.OpenRows(failures, "nowhere", {1}).AtEnd());
  EXPECT_TRUE(db.OpenRowsNamed(failures, "nowhere", {"name", "a"}).AtEnd());
  EXPECT_FALSE(db.VisitRows(failures, "nowhere", {"name"}, [](auto, auto) {}));

  EXPECT_THAT(failures.Numbers(), ElementsAre(3078, 3078, 3078, 3078));
}

TEST_P(RowsOf, ATableAreVisitedWithTheFieldsAskedFor) {
  Add("a", Value(), 7);
  Add("b", "food");
  std::vector<std::string> seen;

  EXPECT_TRUE(db.VisitRows(mustWork, "goods", {"price", "name"},
                           [&](std::int64_t number, std::span<const HeldRows::Cell> cells) {
                             seen.push_back(std::to_string(number) + " " +
                                            HeldRows::ValueOf(cells[0]).Text() + " " +
                                            HeldRows::ValueOf(cells[1]).Text());
                           }));

  EXPECT_THAT(seen, ElementsAre("1 7 a", "2  b"));
  ExpectStaysInItsPlace();
}

TEST_P(RowsOf, AFieldThatIsNotThereCannotBeVisited) {
  EXPECT_FALSE(db.VisitRows(failures, "goods", {"missing"}, [](auto, auto) {}));

  EXPECT_THAT(failures.Numbers(), ElementsAre(3265));
}

TEST_P(RowsOf, AVisitThatFailsEnd) {
  Add("a", "x");
  Add("b", "x");
  int visits = 0;

  EXPECT_FALSE(db.VisitRows(failures, "goods", {"name"}, [&](auto, auto) {
    ++visits;
    throw RuntimeFailure(failure_number::kOverflow);
  }));

  EXPECT_EQ(visits, 1);
  EXPECT_THAT(failures.Numbers(), ElementsAre(failure_number::kOverflow));
}

TEST_P(RowsOf, AnOpenRecordsetAreChangedInTheFileOnceTheyAreWritten) {
  Add("a", "x", 1);
  Add("b", "x", 2);
  Recordset rows = db.OpenRows(mustWork, "goods");
  rows.MoveNext();

  db.WriteHeldRows(mustWork);
  rows.Edit();
  rows["price"] = 9;
  rows.Update();

  EXPECT_EQ(db.LookUp(mustWork, "goods", "name", "price", 9), Value("b"));
  EXPECT_EQ(db.LookUp(mustWork, "goods", "name", "price", 1), Value("a"));
}

TEST_P(RowsOf, AKeyKeepToItWhenTheyChange) {
  Add("a", "x");
  Add("b", "x");
  Recordset rows = db.OpenRows(failures, "goods");

  rows.Edit();
  rows["name"] = "B";
  rows.Update();
  rows.Edit();
  rows["name"] = "c";
  rows.Update();

  EXPECT_THAT(failures.Numbers(), ElementsAre(3022));
  EXPECT_THAT(Names(db.OpenRows(mustWork, "goods")), ElementsAre("c", "b"));
}

TEST_P(RowsOf, AChangeThatMemoryLacksForKeepTheirContentWhereverItFails) {
  Add("a", "x", 1);
  const std::string kind(200, 'k');
  bool failed = true;
  for (int before = 0; failed; ++before) {
    RecordFailures lacks;
    Recordset rows = db.OpenRows(lacks, "goods");
    rows.Edit();
    rows["price"] = 2;
    rows["kind"] = kind;
    {
      const FailingAllocation lack(before);
      rows.Update();
      failed = lack.Happened();
    }
    Recordset stored = db.OpenRows(mustWork, "goods");
    if (lacks.Failures.empty()) {
      EXPECT_EQ(stored["price"].Get(), 2) << before;
      EXPECT_EQ(stored["kind"].Get(), Value(kind)) << before;
      return;
    }
    EXPECT_THAT(lacks.Numbers(), ElementsAre(failure_number::kOutOfMemory)) << before;
    EXPECT_EQ(stored["price"].Get(), 1) << before;
    EXPECT_EQ(stored["kind"].Get(), "x") << before;
  }
}

// How the engine answers a native query, in its own words.
std::string PlanOf(const Database& db, const std::string& query) {
  sqlite3_stmt* plan = nullptr;
  sqlite3_prepare_v2(db.Native(), ("EXPLAIN QUERY PLAN " + query).c_str(), -1, &plan, nullptr);
  std::string text;
  while (sqlite3_step(plan) == SQLITE_ROW) {
    text += reinterpret_cast<const char*>(sqlite3_column_text(plan, 3));
  }
  sqlite3_finalize(plan);
  return text;
}

TEST(RowsNamed, GetAnIndexInAFileThatIsThrownAwayLater) {
  FailTest mustWork;
  TempFolder folder;
  const auto indexes = [&](Database& db) {
    db.CreateTable(mustWork, {"goods", {Of("name", FieldType::Text)}, {}});
    db.OpenRowsNamed(mustWork, "goods", {"name", "a"});
    db.OpenRowsNamed(mustWork, "goods", {"name", "b"});
    return db.OpenRecordset(mustWork, "SELECT * FROM sqlite_master WHERE type = 'index'")
        .RecordCount();
  };
  Database shared =
      DBEngine::CreateDatabase(mustWork, folder.Path() / "a.mdb", JetVersionOption::Version40);
  EXPECT_EQ(indexes(shared), 0u);

  Database db = DBEngine::CreateDatabase(mustWork, folder.Path() / "b.mdb",
                                         JetVersionOption::Version40, FileUse::Building);
  EXPECT_EQ(indexes(db), 1u);
  EXPECT_THAT(PlanOf(db, "SELECT * FROM goods WHERE ucase(name) = ?1 COLLATE NOCASE"),
              HasSubstr("USING INDEX goods lookup name"));
}

}  // namespace
}  // namespace orrerix
