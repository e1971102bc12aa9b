// SPDX-License-Identifier: MIT
#include "db/rows/appender.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "db/engine/engine.h"
#include "db/schema.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

TEST(Appender, WritesRowsInTheOrderOfTheFields) {
  FailTest mustWork;
  Database db = DBEngine::CreateInMemory(mustWork);
  db.CreateTable(mustWork, GenericTable("gun"));
  Appender appender = db.OpenAppender(mustWork, GenericTable("gun"), 2);

  appender.Set(0, std::int64_t{1});
  appender.Set(1, "fox");
  appender.Append();
  appender.Set(0, std::int64_t{2});
  appender.Append();

  Recordset rows = db.OpenRecordset(mustWork, "SELECT * FROM gun");
  ASSERT_EQ(rows.RecordCount(), 2u);
  EXPECT_EQ(rows["OX_ID"].Get(), 1);
  EXPECT_EQ(rows["SourceFileName"].Get(), "fox");
  rows.MoveNext();
  EXPECT_EQ(rows["OX_ID"].Get(), 2);
  EXPECT_TRUE(rows["SourceFileName"].IsNull());
}

TEST(Appender, WritesEachOfManyRowsOnceAndForgetsWhatTheRowBeforeHad) {
  FailTest mustWork;
  Database db = DBEngine::CreateInMemory(mustWork);
  db.CreateTable(mustWork, GenericTable("gun"));
  constexpr std::size_t count = 1003;
  Appender appender = db.OpenAppender(mustWork, GenericTable("gun"), count);

  for (std::size_t i = 0; i < count; ++i) {
    appender.Set(0, static_cast<std::int64_t>(i));
    if (i % 2 == 0) appender.Set(1, "even");
    appender.Append();
  }

  Recordset rows = db.OpenRecordset(mustWork, "SELECT * FROM gun");
  ASSERT_EQ(rows.RecordCount(), count);
  for (std::size_t i = 0; i < count; ++i, rows.MoveNext()) {
    EXPECT_EQ(rows["OX_ID"].Get(), i);
    EXPECT_EQ(rows["SourceFileName"].Get(), i % 2 == 0 ? Value("even") : Value());
  }
}

TEST(Appender, ARowThatBreaksAKeyGoesToTheSink) {
  FailTest mustWork;
  RecordFailures failures;
  Database db = DBEngine::CreateInMemory(mustWork);
  const TableDef names = FixedTables()[5];
  db.CreateTable(mustWork, names);
  Appender appender = db.OpenAppender(failures, names, 2);

  for (int i = 0; i < 2; ++i) {
    appender.Set(0, std::int64_t{7});
    appender.Append();
  }

  EXPECT_THAT(failures.Numbers(), ElementsAre(3022));
}

TEST(Appender, WithoutATableDoesNothing) {
  FailTest mustWork;
  RecordFailures failures;
  Database db = DBEngine::CreateInMemory(mustWork);
  Appender appender = db.OpenAppender(failures, GenericTable("gun"), 1);

  appender.Set(0, "x");
  appender.Append();

  EXPECT_THAT(failures.Numbers(), ElementsAre(3078));
}

}  // namespace
}  // namespace orrerix
