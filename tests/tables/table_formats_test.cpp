// SPDX-License-Identifier: MIT
#include "tables/table_formats.h"

#include <gtest/gtest.h>

#include "support/stored_tables.h"

namespace orrerix {
namespace {

StoredTable Things(TableCells rows) {
  return TableOf("things", {{"name", FieldType::Text}, {"price", FieldType::Double}}, rows);
}

TEST(Csv, QuotesOnlyWhatNeedsQuotes) {
  EXPECT_EQ(CsvField("plain text; 'so'"), "plain text; 'so'");
  EXPECT_EQ(CsvField("a,b"), "\"a,b\"");
  EXPECT_EQ(CsvField("say \"x\""), "\"say \"\"x\"\"\"");
  EXPECT_EQ(CsvField("a\nb"), "\"a\nb\"");
  EXPECT_EQ(CsvField("a\rb"), "\"a\rb\"");
}

TEST(Csv, HasAHeadLineAndEmptyFieldsForNull) {
  const StoredTable table = Things({{"Jan Stöhr", 0.5}, {Null(), Null()}, {"", 3}});

  EXPECT_EQ(CsvOf({table, {1, 0}, {0, 1, 2}}), "price,name\r\n0.5,Jan Stöhr\r\n,\r\n3,\r\n");
}

TEST(AlignedColumns, PutTextsLeftAndNumbersRight) {
  const StoredTable table = Things({{"Stöhr", 5}, {"X", 1250.5}, {Null(), Null()}});

  EXPECT_EQ(AlignedText({table, {0, 1}, {0, 1, 2}}),
            "name    price\n"
            "Stöhr       5\n"
            "X      1250.5\n"
            "\n");
}

TEST(AlignedColumns, CutTextsAt40Characters) {
  const std::string forty(40, 'x');
  const StoredTable table = Things({{forty, 1}, {forty + "y", 2}});

  EXPECT_EQ(AlignedText({table, {0}, {0, 1}}), "name\n" + forty + "\n" + forty + "...\n");
}

TEST(AlignedColumns, KeepEachRowOnOneLine) {
  const StoredTable table = Things({{"a\r\nb\tc\nd", 1}});

  EXPECT_EQ(AlignedText({table, {0}, {0}}), "name\na b c d\n");
}

}  // namespace
}  // namespace orrerix
