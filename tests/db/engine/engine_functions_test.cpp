// SPDX-License-Identifier: MIT
#include "db/engine/engine_functions.h"

#include <cstdint>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "db/engine/engine.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

using ::testing::ElementsAre;

class EngineFunctions : public ::testing::Test {
 protected:
  Value Result(const std::string& expression) {
    Recordset row = db.OpenRecordset(mustWork, "SELECT " + expression + " AS result");
    return row[0].Get();
  }

  FailTest mustWork;
  Database db = DBEngine::CreateInMemory(mustWork);
};

TEST_F(EngineFunctions, WorkOnCharacters) {
  EXPECT_EQ(Result("ucase('fünf ß')"), "FÜNF ß");
  EXPECT_EQ(Result("len('fünf€')"), 5);
  EXPECT_EQ(Result("left('fünf', 2)"), "fü");
  EXPECT_EQ(Result("right('fünf', 3)"), "ünf");
  EXPECT_EQ(Result("left('a', 9)"), "a");
  EXPECT_EQ(Result("left('a', 0)"), "");
}

TEST_F(EngineFunctions, GiveNullForNull) {
  for (const char* call : {"ucase(NULL)", "len(NULL)", "left(NULL, 1)", "right(NULL, 1)",
                           "NULL like '*'", "'a' like NULL"}) {
    EXPECT_TRUE(Result(call).IsNull()) << call;
  }
  EXPECT_EQ(Result("isnull(NULL)"), 1);
  EXPECT_EQ(Result("isnull('')"), 0);
}

TEST_F(EngineFunctions, TakeNumbersForTheirTexts) {
  EXPECT_EQ(Result("len(1234)"), 4);
  EXPECT_EQ(Result("left(1234, 2)"), "12");
}

TEST_F(EngineFunctions, ANegativeLengthIsAFailure) {
  RecordFailures failures;
  db.OpenRecordset(failures, "SELECT left('abc', -1)");
  db.OpenRecordset(failures, "SELECT right('abc', -1)");

  EXPECT_THAT(failures.Numbers(), ElementsAre(5, 5));
  EXPECT_EQ(failures.Failures[0].Description, "Invalid procedure call or argument");
}

}  // namespace
}  // namespace orrerix
