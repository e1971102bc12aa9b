// SPDX-License-Identifier: MIT
#include "db/database.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "db/engine/engine.h"
#include "support/failure_sinks.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Field TextField(std::string name) {
  Field field;
  field.Name = std::move(name);
  field.AllowZeroLength = true;
  return field;
}

Field LongField(std::string name) {
  Field field;
  field.Name = std::move(name);
  field.Type = FieldType::Long;
  return field;
}

// Tables `t` (name, number) and `keyed`, whose key is its name.
class OpenDatabase : public ::testing::Test {
 protected:
  OpenDatabase() {
    db = DBEngine::CreateInMemory(mustWork);
    db.CreateTable(mustWork, {"t", {TextField("name"), LongField("number")}, {}});
    db.CreateTable(mustWork,
                   {"keyed", {TextField("name"), LongField("number")}, Index{"k", {"name"}}});
  }

  void Add(std::string_view name, const Value& number = {}, std::string_view table = "t") {
    Recordset rows = db.OpenTable(mustWork, table);
    rows.AddNew();
    rows["name"] = Value(name);
    rows["number"] = number;
    rows.Update();
  }

  std::vector<std::string> Names(std::string_view query, std::initializer_list<Value> values = {}) {
    std::vector<std::string> names;
    for (Recordset rows = db.OpenRecordset(mustWork, query, values); !rows.AtEnd();
         rows.MoveNext()) {
      names.push_back(rows[0].Get().Text());
    }
    return names;
  }

  FailTest mustWork;
  RecordFailures failures;
  Database db;
};

TEST_F(OpenDatabase, ComparesTextsWithoutRegardToCase) {
  Add("Fox");
  Add("hound");

  EXPECT_THAT(Names("SELECT * FROM t WHERE name = 'fOX'"), ElementsAre("Fox"));
  EXPECT_THAT(Names("SELECT * FROM t WHERE ucase(name) = '{}'", {"HOUND"}), ElementsAre("hound"));
  EXPECT_THAT(Names("SELECT * FROM t WHERE name <> 'FOX'"), ElementsAre("hound"));
  EXPECT_THAT(Names("SELECT * FROM t WHERE name IN ('FOX', 'x')"), ElementsAre("Fox"));
  EXPECT_THAT(Names("SELECT * FROM t WHERE left(name, 2) = 'FO'"), ElementsAre("Fox"));
}

TEST_F(OpenDatabase, ComparesOtherLettersCaseAndAllUnlessUcaseIsAsked) {
  Add("Ähre");

  EXPECT_THAT(Names("SELECT * FROM t WHERE name = 'ähre'"), IsEmpty());
  EXPECT_THAT(Names("SELECT * FROM t WHERE ucase(name) = 'ÄHRE'"), ElementsAre("Ähre"));
}

TEST_F(OpenDatabase, OrdersWithoutRegardToCaseAndTiesByInsertion) {
  Add("b", 1);
  Add("B", 2);
  Add("a", 3);
  Add("_", 4);
  Add("ä", 5);
  Add("Z", 6);
  Add("b", 7);
  const auto numbers = ElementsAre("4", "3", "1", "2", "7", "6", "5");

  // "_" comes before "a" since letters count as lower case ones; "ä" after all of ASCII.
  EXPECT_THAT(Names("SELECT number FROM t ORDER BY name"), numbers);
  EXPECT_THAT(Names("SELECT number FROM t ORDER BY ucase(name)"), numbers);
  EXPECT_THAT(Names("SELECT number FROM t order by ucase(name);"), numbers);
}

TEST_F(OpenDatabase, OrdersNullFirst) {
  Add("b", 1);
  Add("a");

  EXPECT_THAT(Names("SELECT name FROM t ORDER BY number"), ElementsAre("a", "b"));
}

TEST_F(OpenDatabase, KeepsTheOrderOfInsertionWhateverIndexServesTheQuery) {
  for (const char* name : {"c", "b", "d", "a"}) Add(name, 1, "keyed");
  db.ExecuteNative(mustWork, "CREATE INDEX lookup ON keyed (ucase(name) COLLATE NOCASE)");

  EXPECT_THAT(Names("SELECT name FROM keyed"), ElementsAre("c", "b", "d", "a"));
  EXPECT_THAT(Names("SELECT * FROM keyed WHERE name > 'A'"), ElementsAre("c", "b", "d"));
  EXPECT_THAT(Names("SELECT * FROM keyed WHERE ucase(name) = 'A' OR ucase(name) = 'B' OR "
                    "ucase(name) = 'C'"),
              ElementsAre("c", "b", "a"));
}

TEST_F(OpenDatabase, TiesOfADescendingOrderKeepTheirInsertionToo) {
  for (const char* name : {"x", "y", "z"}) Add(name, 1);
  Add("first", 2);

  EXPECT_THAT(Names("SELECT name FROM t ORDER BY number DESC"),
              ElementsAre("first", "x", "y", "z"));
}

TEST_F(OpenDatabase, KnowsTheEnginesPatterns) {
  for (const char* name : {"Fox 7", "Fox a", "Hound_"}) Add(name);

  EXPECT_THAT(Names("SELECT * FROM t WHERE name like 'fox*'"), ElementsAre("Fox 7", "Fox a"));
  EXPECT_THAT(Names("SELECT * FROM t WHERE name Like '*#'"), ElementsAre("Fox 7"));
  EXPECT_THAT(Names("SELECT * FROM t WHERE name LIKE '*[!0-9]'"), ElementsAre("Fox a", "Hound_"));
  EXPECT_THAT(Names("SELECT * FROM t WHERE ucase(name) like '*{}*'", {"OX ?"}),
              ElementsAre("Fox 7", "Fox a"));
  EXPECT_THAT(Names("SELECT * FROM t WHERE name NOT LIKE 'fox*'"), ElementsAre("Hound_"));
}

TEST_F(OpenDatabase, AnInvalidPatternFails) {
  Add("a");

  Recordset rows = db.OpenRecordset(failures, "SELECT * FROM t WHERE name like '*[*'");

  EXPECT_TRUE(rows.AtEnd());
  ASSERT_THAT(failures.Numbers(), ElementsAre(93));
  EXPECT_EQ(failures.Failures[0].Description, "Invalid pattern string.");
}

TEST_F(OpenDatabase, AQuoteInAValueChangesTheQuery) {
  Add("a");
  Add("b");

  EXPECT_THAT(Names("SELECT * FROM t WHERE name = '{}'", {"x' OR name = 'b"}), ElementsAre("b"));
  EXPECT_TRUE(db.OpenRecordset(failures, "SELECT * FROM t WHERE name = '{}'", {"x'"}).AtEnd());
  ASSERT_THAT(failures.Numbers(), ElementsAre(3075));
  EXPECT_EQ(failures.Failures[0].Description, "Syntax error in query expression.");
}

TEST_F(OpenDatabase, AQueryThatIsNoneFails) {
  for (const char* query : {"", "nonsense", "SELECT FROM", "SELECT * FROM t WHERE ("}) {
    EXPECT_TRUE(db.OpenRecordset(failures, query).AtEnd());
  }

  EXPECT_THAT(failures.Numbers(), ElementsAre(3075, 3075, 3075, 3075));
}

TEST_F(OpenDatabase, AMissingTableFails) {
  db.OpenRecordset(failures, "SELECT * FROM missing");
  db.OpenTable(failures, "missing");

  EXPECT_THAT(failures.Numbers(), ElementsAre(3078, 3078));
}

TEST_F(OpenDatabase, NullIsNeitherEqualNorLikeAnything) {
  db.Execute(mustWork, "INSERT INTO t VALUES (NULL, 1)");

  EXPECT_THAT(Names("SELECT number FROM t WHERE name = ''"), IsEmpty());
  EXPECT_THAT(Names("SELECT number FROM t WHERE name <> ''"), IsEmpty());
  EXPECT_THAT(Names("SELECT number FROM t WHERE name like '*'"), IsEmpty());
  EXPECT_THAT(Names("SELECT number FROM t WHERE len(name) = 0"), IsEmpty());
  EXPECT_THAT(Names("SELECT number FROM t WHERE isnull(name)"), ElementsAre("1"));
}

TEST_F(OpenDatabase, ASumPassesOverNull) {
  Add("a", 2);
  Add("b");
  Add("c", 3);

  EXPECT_THAT(Names("SELECT sum(number) FROM t"), ElementsAre("5"));
}

TEST_F(OpenDatabase, JoinsBothWays) {
  Add("a", 1);
  Add("b", 2);
  Add("A", 5, "keyed");
  Add("c", 6, "keyed");

  EXPECT_THAT(Names("SELECT keyed.number FROM t LEFT JOIN keyed ON t.name = keyed.name"),
              ElementsAre("5", ""));
  EXPECT_THAT(Names("SELECT t.number FROM t RIGHT JOIN keyed ON t.name = keyed.name"),
              ElementsAre("1", ""));
  EXPECT_THAT(Names("SELECT IIf(number > 1, 'more', 'one') FROM t"), ElementsAre("one", "more"));
}

TEST_F(OpenDatabase, AnAppendQueryThatBreaksAKeyFails) {
  for (const char* name : {"a", "A"}) Add(name);

  db.Execute(failures, "INSERT INTO keyed SELECT * FROM t");

  EXPECT_THAT(failures.Numbers(), ElementsAre(3022));
  EXPECT_THAT(Names("SELECT name FROM keyed"), IsEmpty());
}

TEST_F(OpenDatabase, ATableOfTheSameNameIsRefusedWhateverItsCase) {
  db.CreateTable(failures, {"T", {TextField("x")}, {}});

  ASSERT_THAT(failures.Numbers(), ElementsAre(3010));
  EXPECT_EQ(failures.Failures[0].Description, "Table 'T' already exists.");
}

TEST_F(OpenDatabase, TellsItsTablesAndFields) {
  EXPECT_TRUE(db.HasTable("KEYED"));
  EXPECT_FALSE(db.HasTable("missing"));
  EXPECT_TRUE(db.HasField("t", "NUMBER"));
  EXPECT_FALSE(db.HasField("t", "missing"));
  EXPECT_FALSE(db.HasField("missing", "name"));

  const auto tables = db.TableDefs(mustWork);

  ASSERT_EQ(tables.size(), 2u);
  EXPECT_EQ(tables[0].Name, "t");
  EXPECT_EQ(tables[1].Name, "keyed");
}

TEST_F(OpenDatabase, AClosedOneFailsEachOperation) {
  db.Close();
  Database never;
  for (Database* closed : {&db, &never}) {
    EXPECT_FALSE(closed->IsOpen());
    closed->OpenRecordset(failures, "SELECT * FROM t");
    closed->OpenTable(failures, "t");
    closed->Execute(failures, "DELETE FROM t");
    closed->CreateTable(failures, {"x", {TextField("y")}, {}});
    closed->TableDefs(failures);
    closed->Begin(failures);
    closed->FreePages(failures);
    EXPECT_FALSE(closed->HasTable("t"));
    closed->Close();
  }

  EXPECT_THAT(failures.Numbers(), ::testing::Each(3420));
  EXPECT_EQ(failures.Numbers().size(), 14u);
}

TEST_F(OpenDatabase, ClosingKeepsWhatATransactionDid) {
  TempFolder folder;
  const auto path = folder.Path() / "a.mdb";
  db = DBEngine::CreateDatabase(mustWork, path, JetVersionOption::Version30);
  db.Begin(mustWork);
  db.CreateTable(mustWork, {"t", {TextField("name"), LongField("number")}, {}});
  Add("a");
  db.Close();

  db = DBEngine::OpenDatabase(mustWork, path);

  EXPECT_THAT(Names("SELECT name FROM t"), ElementsAre("a"));
}

TEST_F(OpenDatabase, AFileCanBeReadWithoutTheProgramsFunctions) {
  // A key or a check that called one of them would make this statement fail elsewhere.
  Recordset schema = db.OpenRecordset(mustWork, "SELECT * FROM sqlite_master");
  for (; !schema.AtEnd(); schema.MoveNext()) {
    const std::string sql = schema["sql"].Get().Text();
    EXPECT_EQ(sql.find("ucase"), std::string::npos) << sql;
    EXPECT_EQ(sql.find("len("), std::string::npos) << sql;
  }
}

TEST_F(OpenDatabase, ReadsAWholeTableInStoredOrderWhateverItsIndexes) {
  for (const char* name : {"c", "b", "d", "a"}) Add(name, 1, "keyed");
  db.ExecuteNative(mustWork, "CREATE INDEX lookup ON keyed (name, number)");

  const StoredTable table = db.ReadTable(mustWork, "KEYED");

  EXPECT_EQ(table.Definition.Name, "keyed");
  ASSERT_EQ(table.RowCount(), 4u);
  std::string names;
  for (std::size_t row = 0; row < 4; ++row) {
    names += table.Row(row)[*table.Definition.Find("name")].Text();
  }
  EXPECT_EQ(names, "cbda");
}

TEST_F(OpenDatabase, ATableThatIsMissingCannotBeRead) {
  const StoredTable table = db.ReadTable(failures, "nowhere");

  EXPECT_EQ(table.RowCount(), 0u);
  EXPECT_THAT(failures.Numbers(), ElementsAre(failure_number::kNoSuchTable));
}

TEST_F(OpenDatabase, TheRowsOfATableThatIsMissingCannotBeCounted) {
  EXPECT_FALSE(db.RowCount(failures, "absent").has_value());

  EXPECT_THAT(failures.Numbers(), ElementsAre(failure_number::kNoSuchTable));
}

}  // namespace
}  // namespace orrerix
