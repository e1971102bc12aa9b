// SPDX-License-Identifier: MIT
#include "db/engine/working_copy.h"

#include <chrono>
#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "db/engine/engine.h"
#include "db/schema.h"
#include "support/failing_disk.h"
#include "support/failure_sinks.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

class AWorkingCopy : public ::testing::Test {
 protected:
  AWorkingCopy() {
    Database database = DBEngine::CreateDatabase(mustWork, file, JetVersionOption::Version30);
    for (const TableDef& table : FixedTables()) database.CreateTable(mustWork, table);
    AddSystem(database, "Li01");
  }

  void AddSystem(Database& database, std::string_view nickname) {
    Recordset rows = database.OpenTable(mustWork, "Systems");
    rows.AddNew();
    rows["nickname"] = Value(nickname);
    rows.Update();
  }

  std::size_t Systems() {
    return copy.Of(mustWork, file).OpenRecordset(mustWork, "SELECT * FROM Systems").RecordCount();
  }

  FailTest mustWork;
  TempFolder folder;
  fs::path file = folder.Path() / "Orrerix.fl";
  WorkingCopy copy;
};

TEST_F(AWorkingCopy, HoldsWhatTheFileHolds) {
  EXPECT_EQ(Systems(), 1u);
  EXPECT_EQ(copy.Of(mustWork, file).TableDefs(mustWork).size(), FixedTables().size());
}

TEST_F(AWorkingCopy, HasIndexesTheFileLacks) {
  EXPECT_FALSE(copy.Of(mustWork, file)
                   .OpenRecordset(mustWork, "SELECT * FROM sqlite_master WHERE name like 'lookup*'")
                   .Empty());
  Database original = DBEngine::OpenDatabase(mustWork, file);
  EXPECT_TRUE(
      original.OpenRecordset(mustWork, "SELECT * FROM sqlite_master WHERE name like 'lookup*'")
          .Empty());
}

TEST_F(AWorkingCopy, IsMadeAnewWhenTheFileHasChanged) {
  ASSERT_EQ(Systems(), 1u);
  {
    Database original = DBEngine::OpenDatabase(mustWork, file);
    AddSystem(original, "Li02");
  }
  fs::last_write_time(file, fs::last_write_time(file) + std::chrono::hours(1));

  EXPECT_EQ(Systems(), 2u);
}

TEST_F(AWorkingCopy, IsKeptWhileTheFileStays) {
  Database& first = copy.Of(mustWork, file);
  first.Execute(mustWork, "DELETE FROM Systems");

  EXPECT_EQ(Systems(), 0u);  // the copy's own change: the file was not read again
  copy.Drop();
  EXPECT_EQ(Systems(), 1u);
}

TEST_F(AWorkingCopy, AMissingFileIsAFailureAndLeavesItClosed) {
  Systems();
  fs::remove(file);
  RecordFailures failures;

  EXPECT_FALSE(copy.Of(failures, file).IsOpen());

  EXPECT_THAT(failures.Numbers(), ElementsAre(3024));
}

TEST_F(AWorkingCopy, ADamagedFileIsAFailure) {
  folder.Write("Orrerix.fl", std::string(5000, 'x'));
  RecordFailures failures;

  EXPECT_FALSE(copy.Of(failures, file).IsOpen());

  EXPECT_THAT(failures.Numbers(), ElementsAre(3343));
}

TEST_F(AWorkingCopy, AFileOfAnotherKindHasNoTables) {
  fs::remove(file);
  DBEngine::CreateDatabase(mustWork, file, JetVersionOption::Version30);

  EXPECT_TRUE(copy.Of(mustWork, file).TableDefs(mustWork).empty());
}

// Reading the file fails at each operation in turn.
TEST_F(AWorkingCopy, IsNotMadeOfAFileThatCannotBeReadAndIsMadeByTheNextReader) {
  int operations = 0;
  for (bool happened = true; happened; ++operations) {
    copy.Drop();
    RecordFailures failures;
    bool isOpen = false;
    {
      const FailingDisk trouble(DiskTrouble::Unreadable, operations);
      isOpen = copy.Of(failures, file).IsOpen();
      happened = trouble.Happened();
    }
    EXPECT_EQ(isOpen, failures.Failures.empty());
    if (!isOpen) {
      EXPECT_THAT(failures.Failures[0].Description, ::testing::HasSubstr("Orrerix.fl"));
    }

    EXPECT_EQ(Systems(), 1u);
    ASSERT_FALSE(HasFailure()) << operations;
  }
  EXPECT_GT(operations, 3);
}

TEST_F(AWorkingCopy, AFileThatCannotBeOpenedIsNamed) {
  RecordFailures failures;
  {
    const FailingDisk trouble(DiskTrouble::Error, 0);
    EXPECT_FALSE(copy.Of(failures, file).IsOpen());
  }

  EXPECT_THAT(failures.Numbers(), ElementsAre(3024));
  EXPECT_THAT(failures.Failures[0].Description, ::testing::HasSubstr("Orrerix.fl"));
  EXPECT_EQ(Systems(), 1u);
}

}  // namespace
}  // namespace orrerix
