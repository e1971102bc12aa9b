// SPDX-License-Identifier: MIT
#include "db/engine/query_text.h"

#include <string>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orrerix {
namespace {

using ::testing::ElementsAre;

Statement Expect(const std::variant<Statement, Failure>& result, std::string_view text) {
  if (const Failure* failure = std::get_if<Failure>(&result)) {
    ADD_FAILURE() << text << ": " << failure->Description;
    return {};
  }
  return std::get<Statement>(result);
}

// A text whose values stand in it already.
Statement Translated(std::string_view text, bool withRowid = false) {
  return Expect(TranslateText(text, withRowid), text);
}

// A text with places for values.
Statement Template(std::string_view text) {
  return Expect(TranslateTemplate(text), text);
}

std::vector<Value> Bound(std::string_view text, std::initializer_list<Value> values) {
  return BoundValues(Template(text), values);
}

int FailureOf(std::string_view text, std::initializer_list<Value> values = {}) {
  const auto result = TranslateText(WriteValues(text, values));
  const Failure* failure = std::get_if<Failure>(&result);
  return failure == nullptr ? 0 : failure->Number;
}

TEST(QueryText, PlacesBecomeParameters) {
  constexpr std::string_view text = "SELECT * FROM a WHERE x = '{}' AND y = {}";

  EXPECT_EQ(Template(text).Sql,
            "SELECT * FROM a WHERE x = ?1 COLLATE NOCASE AND y = ?2 ORDER BY _rowid_");
  EXPECT_THAT(Bound(text, {"fox", 5}), ElementsAre(Value("fox"), Value(5)));
}

TEST(QueryText, AValueWithinQuotesIsAText) {
  EXPECT_THAT(Bound("SELECT * FROM a WHERE x = '{}'", {7}), ElementsAre(Value("7")));
  EXPECT_THAT(Bound("SELECT * FROM a WHERE x = '{}'", {Value()}), ElementsAre(Value("")));
  EXPECT_THAT(Bound("SELECT * FROM a WHERE x like '*{}*'", {"fox"}), ElementsAre(Value("*fox*")));
}

TEST(QueryText, AValueWithAQuoteIsWrittenAsItIs) {
  EXPECT_TRUE(MustBeWritten({"a", "b'c"}));
  EXPECT_FALSE(MustBeWritten({"a", 5, Value()}));

  const std::string text =
      WriteValues("SELECT * FROM a WHERE x = '{}' AND y = {}", {"b' OR 'c' = 'c", 5});

  EXPECT_EQ(text, "SELECT * FROM a WHERE x = 'b' OR 'c' = 'c' AND y = 5");
  EXPECT_EQ(Translated(text).Sql,
            "SELECT * FROM a WHERE x = 'b' COLLATE NOCASE OR 'c' COLLATE NOCASE = 'c' COLLATE "
            "NOCASE AND y = 5 ORDER BY _rowid_");
}

TEST(QueryText, AnOpenQuoteIsASyntaxError) {
  EXPECT_EQ(FailureOf("SELECT * FROM a WHERE x = '{}'", {"bob's"}), 3075);
  EXPECT_EQ(FailureOf("SELECT * FROM a WHERE x = 'b"), 3075);
  EXPECT_EQ(FailureOf("SELECT \"a"), 3075);
  EXPECT_EQ(FailureOf("SELECT [a"), 3075);
}

TEST(QueryText, DoubledQuotesReadAsOne) {
  EXPECT_EQ(Translated("SELECT 'it''s'").Sql, "SELECT 'it''s' COLLATE NOCASE");
  EXPECT_EQ(FailureOf("SELECT * FROM a WHERE x = '{}'", {"it''s"}), 0);
}

TEST(QueryText, HoldsOneStatement) {
  EXPECT_EQ(FailureOf("SELECT 1; DROP TABLE a"), 3075);
  EXPECT_EQ(FailureOf("SELECT * FROM a WHERE x = '{}'", {"'; DROP TABLE a; '"}), 3075);
  EXPECT_EQ(FailureOf("SELECT 1;"), 0);
  EXPECT_EQ(FailureOf("SELECT 1; \r\n"), 0);
}

TEST(QueryText, CommentsAndCharactersOfCodeZeroAreSyntaxErrors) {
  EXPECT_EQ(FailureOf("SELECT 1 -- x"), 3075);
  EXPECT_EQ(FailureOf("SELECT 1 /* x */"), 3075);
  EXPECT_EQ(FailureOf(std::string_view("SELECT 1\0", 9)), 3075);
  EXPECT_EQ(FailureOf("SELECT * FROM a WHERE x = '{}'", {"' --"}), 3075);
}

TEST(QueryText, NamesTheTableOfAPlainQueryOnly) {
  EXPECT_EQ(Translated("SELECT * from Lang0 where ID =5").Table, "Lang0");
  EXPECT_EQ(Translated("SELECT * FROM [a b] WHERE x=1").Table, "a b");
  EXPECT_EQ(Translated("SELECT * FROM a LEFT JOIN b ON a.x = b.x").Table, "");
  EXPECT_EQ(Translated("SELECT x FROM a GROUP BY x").Table, "");
}

TEST(QueryText, AsksForTheRowsNumberIfTold) {
  EXPECT_EQ(Translated("SELECT * FROM a", true).Sql, "SELECT *, _rowid_ FROM a ORDER BY _rowid_");
  EXPECT_EQ(Translated("SELECT * FROM a").Sql, "SELECT * FROM a ORDER BY _rowid_");
}

TEST(QueryText, RowsOfOneTableKeepTheirInsertionOrder) {
  EXPECT_EQ(Translated("SELECT x FROM a ORDER BY x;").Sql, "SELECT x FROM a ORDER BY x, _rowid_");
  EXPECT_EQ(Translated("SELECT x FROM a ORDER BY x, y").Sql,
            "SELECT x FROM a ORDER BY x, y, _rowid_");
  EXPECT_EQ(Translated("SELECT x FROM a;").Sql, "SELECT x FROM a ORDER BY _rowid_");
}

TEST(QueryText, OtherStatementsGetNoOrder) {
  for (const std::string_view text :
       {"SELECT a.x FROM a, b WHERE a.x = b.x", "SELECT a.x FROM a INNER JOIN b ON a.x = b.x",
        "SELECT x FROM a GROUP BY x", "SELECT x FROM a UNION SELECT x FROM b",
        "SELECT x FROM (SELECT x FROM a)", "INSERT INTO a SELECT x FROM b", "DELETE FROM a",
        "SELECT 1 AS x", "SELECT a.x FROM a, b ORDER BY a.x"}) {
    EXPECT_EQ(Translated(text).Sql, text);
  }
}

TEST(QueryText, ABraceOfTheTextsOwnIsJustThat) {
  EXPECT_EQ(Translated("SELECT '{}'").Sql, "SELECT '{}' COLLATE NOCASE");
  EXPECT_EQ(WriteValues("x = '{}' AND y = '{}'", {"{}", "b"}), "x = '{}' AND y = 'b'");
}

}  // namespace
}  // namespace orrerix
