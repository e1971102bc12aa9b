// SPDX-License-Identifier: MIT
#include "diff/universe_diff.h"

#include <gmock/gmock.h>

#include "support/stored_tables.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const TableColumns kPriced = {{"nickname", kText}, {"price", kLong}};

// The differences of one table.
TableDiff Compare(const StoredTable& old, const StoredTable& now) {
  const UniverseDiff diff = CompareUniverses({old}, {now});
  EXPECT_LE(diff.Tables.size(), 1u);
  return diff.Tables.empty() ? TableDiff() : diff.Tables.front();
}

std::vector<Value> Row(std::initializer_list<Value> values) {
  return values;
}

TEST(ADifference, IsARowThatCameWentOrChanged) {
  const TableDiff diff = Compare(TableOf("Goods", kPriced, {{"gold", 5}, {"oil", 7}, {"tin", 1}}),
                                 TableOf("Goods", kPriced, {{"iron", 2}, {"tin", 1}, {"gold", 6}}));

  EXPECT_EQ(diff.Name, "Goods");
  EXPECT_THAT(diff.Columns, ElementsAre("nickname", "price"));
  EXPECT_THAT(diff.Key, ElementsAre(0));
  EXPECT_THAT(diff.Added, ElementsAre(Row({"iron", 2})));
  EXPECT_THAT(diff.Removed, ElementsAre(Row({"oil", 7})));
  ASSERT_THAT(diff.Changed, SizeIs(1));
  EXPECT_EQ(diff.Changed[0].Old, Row({"gold", 5}));
  EXPECT_EQ(diff.Changed[0].New, Row({"gold", 6}));
  EXPECT_THAT(diff.Changed[0].Fields, ElementsAre(1));
}

TEST(ADifference, IsNoneWhereOnlyTheOrderOfRowsDiffers) {
  EXPECT_TRUE(CompareUniverses({TableOf("Goods", kPriced, {{"a", 1}, {"b", 2}})},
                               {TableOf("Goods", kPriced, {{"b", 2}, {"a", 1}})})
                  .IsEmpty());
}

TEST(Rows, ComeInTheOrderOfTheirSide) {
  const TableDiff diff =
      Compare(TableOf("Goods", kPriced, {{"r2", 1}, {"c1", 1}, {"r1", 1}, {"c2", 1}}),
              TableOf("Goods", kPriced, {{"c2", 2}, {"a2", 1}, {"c1", 2}, {"a1", 1}}));

  EXPECT_THAT(diff.Added, ElementsAre(Row({"a2", 1}), Row({"a1", 1})));
  EXPECT_THAT(diff.Removed, ElementsAre(Row({"r2", 1}), Row({"r1", 1})));
  ASSERT_THAT(diff.Changed, SizeIs(2));
  EXPECT_EQ(diff.Changed[0].New[0], Value("c2"));
  EXPECT_EQ(diff.Changed[1].New[0], Value("c1"));
}

TEST(Keys, CompareWithoutCaseButValuesExactly) {
  const TableDiff diff =
      Compare(TableOf("Goods", kPriced, {{"Gold", 5}}), TableOf("Goods", kPriced, {{"GOLD", 5}}));

  EXPECT_THAT(diff.Added, IsEmpty());
  ASSERT_THAT(diff.Changed, SizeIs(1));
  EXPECT_THAT(diff.Changed[0].Fields, ElementsAre(0));
}

TEST(Keys, AreAllTextsWhereANicknameIsRepeatedInWhateverCase) {
  const TableColumns columns = {{"nickname", kText}, {"kind", FieldType::Memo}, {"price", kLong}};
  const TableDiff diff = Compare(TableOf("Goods", columns, {{"gold", "x", 1}, {"Gold", "y", 2}}),
                                 TableOf("Goods", columns, {{"gold", "x", 3}, {"gold", "z", 2}}));

  EXPECT_THAT(diff.Key, ElementsAre(0, 1));
  EXPECT_THAT(diff.Added, ElementsAre(Row({"gold", "z", 2})));
  EXPECT_THAT(diff.Removed, ElementsAre(Row({"Gold", "y", 2})));
  ASSERT_THAT(diff.Changed, SizeIs(1));
  EXPECT_THAT(diff.Changed[0].Fields, ElementsAre(2));
}

TEST(Keys, AreAllTextsWhereANicknameIsNullOnOneSideOrMissing) {
  const StoredTable named = TableOf("t", kPriced, {{"a", 1}});
  EXPECT_THAT(Compare(named, TableOf("t", kPriced, {{Null(), 1}})).Removed, SizeIs(1));

  const StoredTable unnamed = TableOf("t", {{"name", kText}, {"price", kLong}}, {{"a", 1}});
  const TableDiff diff = Compare(named, unnamed);
  EXPECT_THAT(diff.Columns, ElementsAre("name", "price", "nickname"));
  EXPECT_THAT(diff.Key, ElementsAre(0, 2));
  EXPECT_THAT(diff.Added, ElementsAre(Row({"a", 1, Null()})));
  EXPECT_THAT(diff.Removed, ElementsAre(Row({Null(), 1, "a"})));
}

TEST(Keys, OfSeveralTextsKeepTheTextsApart) {
  const TableColumns columns = {{"a", kText}, {"b", kText}};
  const TableDiff diff = Compare(TableOf("t", columns, {{"x", "yz"}, {"", Null()}}),
                                 TableOf("t", columns, {{"xy", "z"}, {Null(), ""}}));

  EXPECT_THAT(diff.Added, SizeIs(2));
  EXPECT_THAT(diff.Removed, SizeIs(2));
}

TEST(RepeatedRows, AreMatchedInStoredOrder) {
  const TableColumns columns = {{"base", kText}, {"count", kLong}};
  const TableDiff diff = Compare(TableOf("t", columns, {{"x", 1}, {"x", 2}, {"x", 3}}),
                                 TableOf("t", columns, {{"X", 1}, {"x", 5}}));

  EXPECT_THAT(diff.Added, IsEmpty());
  EXPECT_THAT(diff.Removed, ElementsAre(Row({"x", 3})));
  ASSERT_THAT(diff.Changed, SizeIs(2));
  EXPECT_THAT(diff.Changed[0].Fields, ElementsAre(0));  // "x" and "X"
  EXPECT_THAT(diff.Changed[1].Fields, ElementsAre(1));
  EXPECT_EQ(diff.Changed[1].Old, Row({"x", 2}));
}

TEST(TextTables, AreMatchedByNumber) {
  const TableColumns columns = {{"ID", kLong}, {"Name", FieldType::Memo}, {"DLL", FieldType::Memo}};
  for (const char* table : {"ids_name", "IDS_INFO"}) {
    const TableDiff diff = Compare(TableOf(table, columns, {{1, "a", "x.dll"}, {2, "b", "x.dll"}}),
                                   TableOf(table, columns, {{2, "c", "x.dll"}, {3, "a", "x.dll"}}));

    EXPECT_THAT(diff.Key, ElementsAre(0));
    EXPECT_THAT(diff.Added, ElementsAre(Row({3, "a", "x.dll"})));
    EXPECT_THAT(diff.Removed, ElementsAre(Row({1, "a", "x.dll"})));
    ASSERT_THAT(diff.Changed, SizeIs(1));
    EXPECT_THAT(diff.Changed[0].Fields, ElementsAre(1));
  }
}

TEST(NumbersOfTheImport, DoNotCount) {
  const TableColumns columns = {{"id", kLong}, {"OX_ID", kLong}, {"nickname", kText}};
  EXPECT_TRUE(CompareUniverses({TableOf("gun", columns, {{1, 2, "a"}})},
                               {TableOf("gun", columns, {{3, 4, "a"}})})
                  .IsEmpty());

  const TableDiff diff =
      Compare(TableOf("gun", columns, {}), TableOf("gun", columns, {{1, 2, "a"}}));
  EXPECT_THAT(diff.Columns, ElementsAre("nickname"));
  EXPECT_THAT(diff.Added, ElementsAre(Row({"a"})));
}

TEST(TablesOfTheImport, DoNotCount) {
  EXPECT_TRUE(CompareUniverses({TableOf("Version", {{"Version", kText}}, {{"1"}})},
                               {TableOf("version", {{"Version", kText}}, {{"2"}}),
                                TableOf("OXWarning", {{"OFF", FieldType::Boolean}}, {{1}})})
                  .IsEmpty());
}

TEST(AColumnOfOneSide, IsNullOnTheOther) {
  const TableColumns more = {{"nickname", kText}, {"price", kLong}, {"mass", kLong}};
  const TableDiff diff = Compare(TableOf("t", kPriced, {{"a", 1}, {"b", 2}}),
                                 TableOf("t", more, {{"a", 1, Null()}, {"b", 2, 9}}));

  ASSERT_THAT(diff.Changed, SizeIs(1));
  EXPECT_EQ(diff.Changed[0].Old, Row({"b", 2, Null()}));
  EXPECT_EQ(diff.Changed[0].New, Row({"b", 2, 9}));
}

TEST(NamesOfTablesAndColumns, CompareWithoutCaseAndAreSpeltAsInTheNewUniverse) {
  const TableDiff diff =
      Compare(TableOf("goods", {{"NICKNAME", kText}, {"PRICE", kLong}}, {{"a", 1}}),
              TableOf("Goods", kPriced, {{"a", 2}}));

  EXPECT_EQ(diff.Name, "Goods");
  EXPECT_THAT(diff.Columns, ElementsAre("nickname", "price"));
  EXPECT_THAT(diff.Changed, SizeIs(1));
}

TEST(TablesOfOneSide, AreNamedAndTheirRowsCount) {
  const UniverseDiff diff = CompareUniverses(
      {TableOf("zone", kPriced, {{"a", 1}}), TableOf("Empty", kPriced, {})},
      {TableOf("Beta", kPriced, {{"x", 1}, {"y", 2}}), TableOf("alpha", kPriced, {})});

  EXPECT_THAT(diff.TablesAdded, ElementsAre("alpha", "Beta"));
  EXPECT_THAT(diff.TablesRemoved, ElementsAre("Empty", "zone"));
  ASSERT_THAT(diff.Tables, SizeIs(2));
  EXPECT_EQ(diff.Tables[0].Name, "Beta");
  EXPECT_EQ(diff.Tables[1].Name, "zone");
  EXPECT_EQ(diff.RowCounts().Added, 2u);
  EXPECT_EQ(diff.RowCounts().Removed, 1u);
  EXPECT_EQ(diff.RowCounts().Changed, 0u);
  EXPECT_FALSE(diff.IsEmpty());
}

TEST(OnlySomeTables, AreCompared) {
  const UniverseDiff diff =
      CompareUniverses({TableOf("a", kPriced, {}), TableOf("Goods", kPriced, {})},
                       {TableOf("Goods", kPriced, {{"x", 1}})}, std::set<std::string>{"goods"});

  EXPECT_THAT(diff.TablesRemoved, IsEmpty());
  EXPECT_THAT(diff.Tables, SizeIs(1));
}

}  // namespace
}  // namespace orrerix
