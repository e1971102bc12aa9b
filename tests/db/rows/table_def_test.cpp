// SPDX-License-Identifier: MIT
#include "db/rows/table_def.h"

#include <string>

#include <gtest/gtest.h>

#include "db/engine/engine.h"
#include "db/rows/field_of.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

TEST(CreateStatement, DeclaresTypesThatDescribeThemselves) {
  Field shortText = Of("t", FieldType::Text, true);
  shortText.Size = 15;
  const TableDef table{
      "a b",
      {Of("o", FieldType::Boolean), Of("y", FieldType::Byte), Of("i", FieldType::Integer),
       Of("l", FieldType::Long), Of("d", FieldType::Double), shortText, Of("n", FieldType::Text),
       Of("m", FieldType::Memo, true), Of("f", FieldType::Memo)},
      {}};

  EXPECT_EQ(CreateStatement(table),
            "CREATE TABLE \"a b\" (\"o\" BOOLEAN INT DEFAULT 0, \"y\" BYTE INT, \"i\" SHORT INT, "
            "\"l\" LONG INT, \"d\" DOUBLE, \"t\" TEXT(15) COLLATE NOCASE, "
            "\"n\" TEXT(255) COLLATE NOCASE CHECK (\"n\" <> ''), \"m\" MEMO TEXT COLLATE NOCASE, "
            "\"f\" MEMO TEXT COLLATE NOCASE CHECK (\"f\" <> ''))");
}

TEST(CreateStatement, NamesASchemaIfThereIsOne) {
  EXPECT_EQ(CreateStatement({"a", {Of("x", FieldType::Long)}, {}}, "other"),
            "CREATE TABLE \"other\".\"a\" (\"x\" LONG INT)");
}

TEST(QuoteName, DoublesQuotes) {
  EXPECT_EQ(QuoteName("a\"b"), "\"a\"\"b\"");
  EXPECT_EQ(QuoteName("a'[b]"), "\"a'[b]\"");
}

TEST(TableDef, FindsFieldsWhateverTheirCase) {
  const TableDef table{"a", {Of("NickName", FieldType::Text), Of("goto", FieldType::Text)}, {}};

  EXPECT_EQ(table.Find("nickname"), 0u);
  EXPECT_EQ(table.Find("GOTO"), 1u);
  EXPECT_FALSE(table.Find("nick"));
}

TEST(TableDef, IsReadBackFromTheFileAsItWasMade) {
  FailTest mustWork;
  Database database = DBEngine::CreateInMemory(mustWork);
  Field id = Of("ID", FieldType::Long);
  id.IsUniqueID = true;
  Field sized = Of("a \"b\"", FieldType::Text, true);
  sized.Size = 20;
  const TableDef made{
      "x y",
      {id, sized, Of("n", FieldType::Text), Of("m", FieldType::Memo, true),
       Of("f", FieldType::Memo), Of("o", FieldType::Boolean), Of("y", FieldType::Byte),
       Of("i", FieldType::Integer), Of("d", FieldType::Double)},
      Index{"k", {"n", "a \"b\""}}};
  database.CreateTable(mustWork, made);

  const auto tables = database.TableDefs(mustWork);

  ASSERT_EQ(tables.size(), 1u);
  EXPECT_EQ(tables[0].Name, "x y");
  ASSERT_EQ(tables[0].Fields.size(), made.Fields.size());
  for (std::size_t i = 0; i < made.Fields.size(); ++i) {
    EXPECT_EQ(tables[0].Fields[i].Name, made.Fields[i].Name);
    EXPECT_EQ(tables[0].Fields[i].Type, made.Fields[i].Type) << made.Fields[i].Name;
    EXPECT_EQ(tables[0].Fields[i].AllowZeroLength, made.Fields[i].AllowZeroLength)
        << made.Fields[i].Name;
    EXPECT_EQ(tables[0].Fields[i].IsUniqueID, made.Fields[i].IsUniqueID) << made.Fields[i].Name;
  }
  EXPECT_EQ(tables[0].Fields[1].Size, 20u);
  EXPECT_EQ(tables[0].Fields[2].Size, 255u);
  ASSERT_TRUE(tables[0].PrimaryKey);
  EXPECT_EQ(tables[0].PrimaryKey->Fields, (std::vector<std::string>{"n", "a \"b\""}));
}

class KeyOfTwoFields : public ::testing::Test {
 protected:
  KeyOfTwoFields() {
    database = DBEngine::CreateInMemory(mustWork);
    database.CreateTable(mustWork,
                         {"t",
                          {Of("a", FieldType::Text, true), Of("b", FieldType::Text, true)},
                          Index{"k", {"a", "b"}}});
  }

  void Add(FailureSink& sink, const Value& a, const Value& b) {
    Recordset rows = database.OpenTable(sink, "t");
    rows.AddNew();
    rows["a"] = a;
    rows["b"] = b;
    rows.Update();
  }

  FailTest mustWork;
  Database database;
};

TEST_F(KeyOfTwoFields, IsReadBackAsItsFields) {
  const auto tables = database.TableDefs(mustWork);

  ASSERT_EQ(tables.size(), 1u);
  ASSERT_TRUE(tables[0].PrimaryKey);
  EXPECT_EQ(tables[0].PrimaryKey->Fields, (std::vector<std::string>{"a", "b"}));
}

TEST_F(KeyOfTwoFields, RefusesDoublesWhateverTheirCaseAndNull) {
  RecordFailures failures;
  Add(mustWork, "base", "Water");
  Add(mustWork, "base", "Gold");
  Add(mustWork, "basew", "ater");

  Add(failures, "Base", "WATER");
  Add(failures, "base", Value());

  EXPECT_EQ(failures.Numbers(), (std::vector<int>{3022, 3058}));
}

TEST(InsertStatement, HasAParameterForEachFieldOfEachRow) {
  const TableDef table{"t", {Of("a", FieldType::Text, true), Of("b", FieldType::Long, true)}, {}};

  EXPECT_EQ(InsertStatement(table, 2), "INSERT INTO \"t\" (\"a\",\"b\") VALUES (?,?),(?,?)");
}

TEST(TableDef, KnowsItsFieldWithAUniqueID) {
  Field id = Of("ID", FieldType::Long, true);
  id.IsUniqueID = true;
  const Field text = Of("a", FieldType::Text, true);

  EXPECT_EQ((TableDef{"t", {text, id}, {}}.UniqueIDField()), std::optional<std::size_t>(1));
  EXPECT_EQ((TableDef{"t", {text}, {}}.UniqueIDField()), std::nullopt);
}

TEST(ReadField, TakesForeignTypesForMemo) {
  EXPECT_EQ(ReadField("x", "VARCHAR(5)", "", "").Type, FieldType::Memo);
  EXPECT_EQ(ReadField("x", "", "", "").Type, FieldType::Memo);
}

}  // namespace
}  // namespace orrerix
