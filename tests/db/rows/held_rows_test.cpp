// SPDX-License-Identifier: MIT
#include "db/rows/held_rows.h"

#include <new>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "db/engine/engine.h"
#include "support/failing_memory.h"
#include "support/failure_sinks.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

Field FieldOf(FieldType type, std::string name) {
  Field field;
  field.Name = std::move(name);
  field.Type = type;
  field.AllowZeroLength = true;
  return field;
}

TableDef Goods(bool isLate = false) {
  return {"goods",
          {FieldOf(FieldType::Text, "base"), FieldOf(FieldType::Text, "good"),
           FieldOf(FieldType::Long, "price")},
          Index{"k", {"base", "good"}, isLate}};
}

void Add(HeldRows& rows, const std::vector<Value>& row) {
  std::vector<HeldRows::Cell> cells;
  for (const Value& value : row) cells.push_back(HeldRows::ViewOf(value));
  rows.Add(cells);
}

TEST(HeldRows, GiveBackWhatTheyTookInItsOrder) {
  TableDef table = Goods();
  table.PrimaryKey.reset();
  HeldRows rows(table);
  for (int i = 0; i < 200; ++i) Add(rows, {"a" + std::to_string(i), Value(), i});

  ASSERT_EQ(rows.RowCount(), 200u);
  for (std::size_t i = 0; i < 200; ++i) {
    EXPECT_EQ(std::get<std::string_view>(rows.Row(i)[0]), "a" + std::to_string(i));
    EXPECT_TRUE(std::holds_alternative<Null>(rows.Row(i)[1]));
    EXPECT_EQ(std::get<std::int64_t>(rows.Row(i)[2]), static_cast<std::int64_t>(i));
  }
}

TEST(HeldRows, MeasureTheLongestTextInCharacters) {
  HeldRows rows(Goods());
  Add(rows, {"abc", "", 12345});
  Add(rows, {"ÄÖÜÄ", Value(), 1});

  EXPECT_THAT(rows.LongestTexts(), ElementsAre(4u, 0u, 0u));
}

TEST(HeldRows, RefuseADoubleWhateverItsCaseButNotAShiftedBorder) {
  HeldRows rows(Goods());
  Add(rows, {"base", "water", 1});
  Add(rows, {"basew", "ater", 1});

  EXPECT_THROW(Add(rows, {"BASE", "Water", 2}), Failure);
  EXPECT_EQ(rows.RowCount(), 2u);
}

// Texts of one length are one to the engine if they agree up to a NUL.
TEST(HeldRows, RefuseWhatTheEnginesOwnKeyWouldRefuse) {
  using namespace std::string_literals;
  HeldRows rows(Goods());
  Add(rows, {"a\0b"s, "x", 1});

  EXPECT_THROW(Add(rows, {"a\0c"s, "x", 1}), Failure);
  EXPECT_NO_THROW(Add(rows, {"a\0cd"s, "x", 1}));
}

TEST(HeldRows, AreFoundByAKeyOfOneField) {
  TableDef table = Goods();
  table.PrimaryKey = Index{"k", {"price"}, false};
  HeldRows rows(table);
  Add(rows, {"base", "water", 12});
  Add(rows, {Value(), "oxygen", 7});

  EXPECT_TRUE(rows.IsKeyedBy("price"));
  EXPECT_FALSE(rows.IsKeyedBy("good"));
  EXPECT_EQ(rows.Find(7), 1u);
  EXPECT_EQ(rows.Find(2), std::nullopt);
  EXPECT_EQ(rows.Content(1, "good"), "oxygen");
  EXPECT_EQ(rows.Content(1, "price"), 7);
  EXPECT_TRUE(rows.Content(1, "base").IsNull());
  EXPECT_TRUE(rows.Content(1, "missing").IsNull());
}

TEST(HeldRows, AKeyOfSeveralFieldsIsNoneOfOne) {
  EXPECT_FALSE(HeldRows(Goods()).IsKeyedBy("base"));
  TableDef keyless = Goods();
  keyless.PrimaryKey.reset();
  EXPECT_FALSE(HeldRows(keyless).IsKeyedBy("base"));
}

class HeldTable : public ::testing::Test {
 protected:
  HeldTable() { db = DBEngine::CreateInMemory(mustWork); }

  void Add(FailureSink& sink, const Value& base, const Value& good, const Value& price = {}) {
    Recordset rows = db.OpenTable(sink, "goods");
    rows.AddNew();
    rows["base"] = base;
    rows["good"] = good;
    rows["price"] = price;
    rows.Update();
  }

  std::size_t Count() { return db.OpenRecordset(mustWork, "SELECT * FROM goods").RecordCount(); }

  std::size_t Keys() {
    return db.OpenRecordset(mustWork, "SELECT * FROM sqlite_master WHERE type = 'index'")
        .RecordCount();
  }

  FailTest mustWork;
  RecordFailures failures;
  Database db;
};

TEST_F(HeldTable, ShowsItsRowsToWhoeverAsks) {
  db.CreateHeldTable(mustWork, Goods());
  Add(mustWork, "b", "water", 7);
  Add(mustWork, "a", "gold", 8);

  Recordset rows = db.OpenRecordset(mustWork, "SELECT * FROM goods");
  ASSERT_EQ(rows.RecordCount(), 2u);
  EXPECT_EQ(rows["base"].Get(), "b");
  EXPECT_EQ(rows["price"].Get(), 7);
  Add(mustWork, "c", "oil");
  EXPECT_EQ(Count(), 3u);
}

TEST_F(HeldTable, ObeysItsKeyBeforeAndAfterTheFirstQuestion) {
  for (const bool isLate : {false, true}) {
    db = DBEngine::CreateInMemory(mustWork);
    db.CreateHeldTable(mustWork, Goods(isLate));
    RecordFailures refused;
    Add(mustWork, "a", "water");
    Add(refused, "A", "WATER");
    Add(refused, "a", Value());
    EXPECT_EQ(Count(), 1u);
    Add(refused, "A", "Water");
    Add(refused, Value(), "water");
    Add(mustWork, "a", "gold");

    EXPECT_THAT(refused.Numbers(), ElementsAre(3022, 3058, 3022, 3058));
    EXPECT_EQ(Count(), 2u);
  }
}

TEST_F(HeldTable, ALateKeyWaitsForAChangeOfItsFieldsOrForMoreRows) {
  for (const char* change :
       {"UPDATE goods SET GOOD = 'wine'", "INSERT INTO goods (base) VALUES ('b')"}) {
    db = DBEngine::CreateInMemory(mustWork);
    db.CreateHeldTable(mustWork, Goods(true));
    Add(mustWork, "a", "water", 1);
    EXPECT_EQ(Count(), 1u);
    db.Execute(mustWork, "UPDATE goods SET price = 2");
    EXPECT_EQ(Keys(), 0u);

    db.Execute(mustWork, change);

    EXPECT_EQ(Keys(), 1u) << change;
  }
}

TEST_F(HeldTable, IsAskedForByItsTableNotByAFieldOfItsName) {
  db.CreateHeldTable(mustWork, Goods());
  db.CreateTable(mustWork, {"other", {FieldOf(FieldType::Text, "goods")}, {}});
  Add(mustWork, "a", "water");

  db.OpenRecordset(mustWork, "SELECT goods FROM other");

  EXPECT_THAT(db.TakeHeldRows(), SizeIs(1));
}

TEST_F(HeldTable, NativeStatementsFindItsRows) {
  db.CreateHeldTable(mustWork, Goods());
  Add(mustWork, "a", "water");

  db.ExecuteNative(mustWork, "CREATE TABLE copy AS SELECT * FROM goods; DELETE FROM goods");

  EXPECT_EQ(db.OpenRecordset(mustWork, "SELECT * FROM copy").RecordCount(), 1u);
  EXPECT_EQ(Count(), 0u);
}

TEST_F(HeldTable, StaysInMemoryWhenARowIsLookedUpByItsKey) {
  TableDef table = Goods();
  table.PrimaryKey = Index{"k", {"price"}, false};
  db.CreateHeldTable(mustWork, table);
  Add(mustWork, "base", "water", 12);

  EXPECT_EQ(db.LookUp(mustWork, "goods", "good", "price", 12), Value("water"));
  EXPECT_EQ(db.LookUp(mustWork, "goods", "good", "price", 13), std::nullopt);
  EXPECT_THAT(db.TakeHeldRows(), SizeIs(1));
}

TEST_F(HeldTable, IsWrittenWhenARowIsLookedUpByAnotherField) {
  db.CreateHeldTable(mustWork, Goods());
  Add(mustWork, "base", "water", 12);

  EXPECT_EQ(db.LookUp(mustWork, "goods", "good", "price", 12), Value("water"));
  EXPECT_THAT(db.TakeHeldRows(), IsEmpty());
}

TEST_F(HeldTable, ALookUpTellsNullFromNoRowBeforeAndAfterItsWriting) {
  TableDef table = Goods();
  table.PrimaryKey = Index{"k", {"price"}, false};
  db.CreateHeldTable(mustWork, table);
  Add(mustWork, "base", Value(), 12);

  EXPECT_EQ(db.LookUp(mustWork, "goods", "good", "price", 12), Value());
  db.WriteHeldRows(mustWork);
  EXPECT_EQ(db.LookUp(mustWork, "goods", "good", "price", 12), Value());
  EXPECT_EQ(db.LookUp(mustWork, "goods", "good", "price", 13), std::nullopt);
}

TEST_F(HeldTable, ALookUpThatFailsFindsNothing) {
  EXPECT_EQ(db.LookUp(failures, "nowhere", "good", "price", 12), std::nullopt);
  EXPECT_THAT(failures.Numbers(), ElementsAre(3078));
}

TEST_F(HeldTable, IsWrittenWithItsKeyOnDemand) {
  TempFolder folder;
  const auto file = folder.Path() / "t.fl";
  db = DBEngine::CreateDatabase(mustWork, file, JetVersionOption::Version30);
  db.CreateHeldTable(mustWork, Goods(true));
  Add(mustWork, "a", "water");

  db.WriteHeldRows(mustWork);
  db.Close();

  db = DBEngine::OpenDatabase(mustWork, file);
  EXPECT_EQ(Count(), 1u);
  Add(failures, "A", "Water");
  EXPECT_THAT(failures.Numbers(), ElementsAre(3022));
}

TEST_F(HeldTable, GivesItsRowsAwayToBeAppendedElsewhere) {
  TableDef table = Goods();
  Field id = FieldOf(FieldType::Long, "ID");
  id.IsUniqueID = true;
  table.Fields.insert(table.Fields.begin(), id);
  db.CreateHeldTable(mustWork, table);
  Add(mustWork, "a", "water", 3);

  const std::vector<HeldRows> held = db.TakeHeldRows();
  ASSERT_THAT(held, SizeIs(1));
  EXPECT_EQ(Count(), 0u);
  db.Append(mustWork, held[0], table);

  Recordset rows = db.OpenRecordset(mustWork, "SELECT * FROM goods");
  ASSERT_EQ(rows.RecordCount(), 1u);
  EXPECT_FALSE(rows["ID"].IsNull());
  EXPECT_EQ(rows["good"].Get(), "water");
  EXPECT_THAT(db.TakeHeldRows(), IsEmpty());
}

TEST_F(HeldTable, CannotBeMadeTwice) {
  db.CreateHeldTable(mustWork, Goods());
  Add(mustWork, "a", "water");

  db.CreateHeldTable(failures, Goods());

  EXPECT_THAT(failures.Numbers(), ElementsAre(3010));
  EXPECT_EQ(Count(), 1u);
}

TEST(HeldRows, ARowThatMemoryLacksForLeavesNothingBehindWhereverItFails) {
  const std::string base(100, 'b');
  const std::string good(100, 'g');
  const std::vector<HeldRows::Cell> row = {std::string_view(base), std::string_view(good),
                                           std::int64_t{7}};
  bool failed = true;
  for (int before = 0; failed; ++before) {
    HeldRows rows(Goods());
    {
      const FailingAllocation lack(before);
      try {
        rows.Add(row);
      } catch (const std::bad_alloc&) {
      }
      failed = lack.Happened();
    }
    if (!failed) break;

    EXPECT_EQ(rows.RowCount(), 0u) << before;
    rows.Add(row);
    EXPECT_EQ(rows.Content(0, "good"), Value(good)) << before;
    EXPECT_THROW(rows.Add(row), Failure) << before;
  }
}

}  // namespace
}  // namespace orrerix
