// SPDX-License-Identifier: MIT
#include "db/engine/engine.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sqlite3.h>

#include "db/schema.h"
#include "support/failure_sinks.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Engine : public ::testing::Test {
 protected:
  Database Create(const fs::path& path) {
    return DBEngine::CreateDatabase(mustWork, path, JetVersionOption::Version30);
  }

  FailTest mustWork;
  RecordFailures failures;
  TempFolder folder;
  fs::path file = folder.Path() / "a.mdb";
};

TEST_F(Engine, MakesAFileThatAnyToolCanRead) {
  Create(file).CreateTable(mustWork, VersionTable());

  std::string magic(15, ' ');
  std::ifstream(file, std::ios::binary).read(magic.data(), 15);
  EXPECT_EQ(magic, "SQLite format 3");
}

TEST_F(Engine, KeepsTheFormatsNumberInTheFile) {
  Database database = DBEngine::CreateDatabase(mustWork, file, JetVersionOption::Version40);

  Recordset number = database.OpenRecordset(mustWork, "SELECT * FROM pragma_user_version");
  EXPECT_EQ(number[0].Get(), 64);
}

TEST_F(Engine, WhatComesIntoANewFileOutlivesALossOfPower) {
  constexpr int full = 2;
  Database database = Create(file);

  Recordset synchronous = database.OpenRecordset(mustWork, "SELECT * FROM pragma_synchronous");

  EXPECT_EQ(synchronous["synchronous"].Get(), full);
}

TEST_F(Engine, AFileThatIsFilledIsLockedFromItsCreation) {
  for (const FileUse use : {FileUse::Filling, FileUse::Building}) {
    Database mine = DBEngine::CreateDatabase(mustWork, file, JetVersionOption::Version40, use);

    EXPECT_FALSE(DBEngine::OpenDatabase(failures, file, use).IsOpen());
    EXPECT_FALSE(DBEngine::OpenDatabase(failures, file).IsOpen());

    mine.Close();
    EXPECT_TRUE(DBEngine::OpenDatabase(mustWork, file).IsOpen());
    fs::remove(file);
  }
  constexpr int inUse = failure_number::kFileInUse;
  EXPECT_THAT(failures.Numbers(), ElementsAre(inUse, inUse, inUse, inUse));
}

TEST_F(Engine, ASharedFileIsNotLocked) {
  Database mine = Create(file);

  EXPECT_TRUE(DBEngine::OpenDatabase(mustWork, file).IsOpen());
}

TEST_F(Engine, AFileThatIsFilledOutlivesALossOfPowerAndOneThatIsBuiltNeedNot) {
  const auto synchronous = [&](FileUse use) {
    fs::remove(file);
    Database made = DBEngine::CreateDatabase(mustWork, file, JetVersionOption::Version40, use);
    return made.OpenRecordset(mustWork, "SELECT * FROM pragma_synchronous")[0].Get();
  };
  constexpr int off = 0;
  constexpr int full = 2;
  EXPECT_EQ(synchronous(FileUse::Filling), full);
  EXPECT_EQ(synchronous(FileUse::Building), off);
}

TEST_F(Engine, DoesNotCreateOverAFile) {
  Create(file).Close();

  EXPECT_FALSE(DBEngine::CreateDatabase(failures, file, JetVersionOption::Version30).IsOpen());
  EXPECT_THAT(failures.Numbers(), ElementsAre(3204));
}

TEST_F(Engine, DoesNotCreateWhereNoFolderIs) {
  EXPECT_FALSE(DBEngine::CreateDatabase(failures, folder.Path() / "none" / "a.mdb",
                                        JetVersionOption::Version30)
                   .IsOpen());
  EXPECT_THAT(failures.Numbers(), ElementsAre(3024));
}

TEST_F(Engine, OpensOnlyWhatIsThere) {
  EXPECT_FALSE(DBEngine::OpenDatabase(failures, file).IsOpen());
  EXPECT_THAT(failures.Numbers(), ElementsAre(3024));
  EXPECT_FALSE(fs::exists(file));
}

TEST_F(Engine, OpensOnlyDatabases) {
  folder.Write("a.mdb", "This is no database, but a text that is long enough to be looked at. " +
                            std::string(500, 'x'));

  EXPECT_FALSE(DBEngine::OpenDatabase(failures, file).IsOpen());
  EXPECT_THAT(failures.Numbers(), ElementsAre(3343));
}

TEST_F(Engine, AnEmptyFileIsAnEmptyDatabase) {
  folder.Write("a.mdb", "");

  EXPECT_THAT(DBEngine::OpenDatabase(mustWork, file).TableDefs(mustWork), IsEmpty());
}

TEST_F(Engine, BearsADatabaseThatIsCutAnywhere) {
  Database whole = Create(file);
  for (const TableDef& table : FixedTables()) whole.CreateTable(mustWork, table);
  Recordset rows = whole.OpenTable(mustWork, "Objects");
  for (int i = 0; i < 200; ++i) {
    rows.AddNew();
    rows["nickname"] = std::to_string(i);
    rows["pos"] = std::string(200, 'x');
    rows.Update();
  }
  whole.Close();
  const auto size = fs::file_size(file);

  for (std::uintmax_t length = 0; length < size; length += 977) {
    const fs::path cut = folder.Path() / "cut.mdb";
    fs::remove(cut);
    fs::copy_file(file, cut);
    fs::resize_file(cut, length);
    Database database = DBEngine::OpenDatabase(failures, cut);
    database.TableDefs(failures);
    Recordset found = database.OpenRecordset(failures, "SELECT * FROM Objects");
    EXPECT_LE(found.RecordCount(), 200u);
  }
}

TEST_F(Engine, CompactingAFileWithoutFreeSpaceRenamesIt) {
  Create(file).CreateTable(mustWork, VersionTable());
  const fs::path to = folder.Path() / "b.mdb";

  DBEngine::CompactDatabase(mustWork, file, to);

  EXPECT_FALSE(fs::exists(file));
  EXPECT_TRUE(DBEngine::OpenDatabase(mustWork, to).HasTable("Version"));
}

TEST_F(Engine, CompactingWritesAFileAnewWithItsTablesInOrder) {
  {
    Database database = Create(file);
    for (const TableDef& table : FixedTables()) database.CreateTable(mustWork, table);
    database.ExecuteNative(mustWork, "CREATE TABLE big AS SELECT randomblob(100000) AS x");
    database.ExecuteNative(mustWork, "DROP TABLE big");
  }
  const auto before = fs::file_size(file);
  const fs::path to = folder.Path() / "b.mdb";

  DBEngine::CompactDatabase(mustWork, file, to);

  EXPECT_LT(fs::file_size(to), before);
  const auto tables = DBEngine::OpenDatabase(mustWork, to).TableDefs(mustWork);
  const auto fixed = FixedTables();
  ASSERT_EQ(tables.size(), fixed.size());
  for (std::size_t i = 0; i < fixed.size(); ++i) {
    EXPECT_EQ(tables[i].Name, fixed[i].Name);
    EXPECT_EQ(tables[i].PrimaryKey.has_value(), fixed[i].PrimaryKey.has_value());
  }
}

TEST_F(Engine, CompactsIntoAPathWithAnApostrophe) {
  Create(file).ExecuteNative(mustWork, "CREATE TABLE big AS SELECT randomblob(100000) AS x");
  DBEngine::OpenDatabase(mustWork, file).ExecuteNative(mustWork, "DROP TABLE big");
  const fs::path to = folder.Path() / "it's.mdb";

  DBEngine::CompactDatabase(mustWork, file, to);

  EXPECT_TRUE(fs::exists(to));
}

TEST_F(Engine, CompactingAFileThatIsNotThereFails) {
  DBEngine::CompactDatabase(failures, file, folder.Path() / "b.mdb");

  EXPECT_THAT(failures.Numbers(), ElementsAre(3024));
}

// A file may come from anybody: what it brings along besides tables does not run.
class StrangersFile : public Engine {
 protected:
  StrangersFile() { Create(file).ExecuteNative(mustWork, "CREATE TABLE t (name)"); }

  // Writes it as any other tool could.
  void Write(const std::string& statements) {
    sqlite3* handle = nullptr;
    sqlite3_open(file.string().c_str(), &handle);
    EXPECT_EQ(sqlite3_exec(handle, statements.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(handle);
  }
};

TEST_F(StrangersFile, AViewThatNeverEndsIsRefused) {
  Write(
      "CREATE VIEW Version AS WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM c) "
      "SELECT x AS Version FROM c");
  Database database = DBEngine::OpenDatabase(mustWork, file);

  Recordset rows = database.OpenRecordset(failures, "SELECT * FROM Version");

  EXPECT_TRUE(rows.Empty());
  EXPECT_THAT(failures.Numbers(), ElementsAre(3078));
}

TEST_F(StrangersFile, ATriggerDoesNotFire) {
  Write("INSERT INTO t VALUES ('a'); CREATE TRIGGER u AFTER UPDATE ON t BEGIN DELETE FROM t; END");
  Database database = DBEngine::OpenDatabase(mustWork, file);

  database.ExecuteNative(mustWork, "UPDATE t SET name = 'b'");

  EXPECT_EQ(database.RowCount(mustWork, "t"), 1);
}

TEST_F(StrangersFile, ATableThatOtherCodeMakesUpIsRefused) {
  if (sqlite3_compileoption_used("ENABLE_RTREE") == 0) {
    GTEST_SKIP() << "this engine has no code that makes tables up";
  }
  Write("CREATE VIRTUAL TABLE Version USING rtree(a, b, c)");
  Database database = DBEngine::OpenDatabase(mustWork, file);

  EXPECT_TRUE(database.OpenRecordset(failures, "SELECT * FROM Version").Empty());
  EXPECT_THAT(failures.Numbers(), ElementsAre(3075));
}

TEST_F(StrangersFile, AValueThatIsCalculatedBeyondAllBoundsIsRefused) {
  Write(
      "CREATE TABLE Version (a, Version AS (zeroblob(900000000))); "
      "INSERT INTO Version VALUES (1)");
  Database database = DBEngine::OpenDatabase(mustWork, file);

  EXPECT_TRUE(database.OpenRecordset(failures, "SELECT * FROM Version").Empty());
  EXPECT_THAT(failures.Numbers(), ElementsAre(3000));
}

}  // namespace
}  // namespace orrerix
