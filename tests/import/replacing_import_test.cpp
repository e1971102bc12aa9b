// SPDX-License-Identifier: MIT
#include "import/replacing_import.h"

#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "shell/startup.h"
#include "support/failing_disk.h"
#include "support/failure_sinks.h"
#include "support/reader_fixture.h"

namespace orrerix {
namespace {

namespace fs = std::filesystem;

// A universe file of a game with one gun, and an import of the game with two.
class DiskTroubles : public ::testing::TestWithParam<DiskTrouble> {
 protected:
  DiskTroubles() {
    game_.Write("EXE/freelancer.ini", WithCrLf("[Data]\nequipment = guns.ini\n"));
    game_.Write("DATA/universe/universe.ini",
                WithCrLf("[System]\nnickname = Li01\npos = 3, 5\nstrid_name = 1\n"));
    Guns("[Gun]\nnickname = laser\n");
    Import();
    older_ = Content();
    fs::copy_file(Target(), saves_.Path() / "older");
    Guns("[Gun]\nnickname = laser\n[Gun]\nnickname = maser\n");
    Import();
    newer_ = Content();
  }

  void Guns(const std::string& text) { game_.Write("DATA/guns.ini", WithCrLf(text)); }

  fs::path Target() const { return saves_.Path() / "Orrerix.fl"; }
  fs::path WorkFolder() const { return saves_.Path() / "Orrerix.fl.import"; }

  void PutOlderBack() {
    fs::remove(Target());
    fs::copy_file(saves_.Path() / "older", Target());
  }

  struct Outcome {
    bool IsFinished = false;
    bool IsReported = false;
  };
  // Every question about a failure is answered OK.
  Outcome Import() {
    FakeMessageBoxes messages;
    ErrorLog log{messages, AppVersion{1, 0, 0}};
    FakeHost host;
    const GameFolder game{game_.Path().string()};
    try {
      const ImportResult result = ReplaceUniverse(
          log, host, {game, Target(), JetVersionOption::Version30, AppVersion{1, 0, 0}}, {});
      return {result.Finished, !log.Failures().empty()};
    } catch (const CannotReplace&) {
      return {false, true};
    }
  }

  // All tables of the target as one text, without their unique numbers; empty without a target.
  std::string Content() {
    if (!fs::exists(Target())) return {};
    FailTest mustWork;
    Database file = DBEngine::OpenDatabase(mustWork, Target());
    std::string content;
    for (const TableDef& table : file.TableDefs(mustWork)) {
      content += table.Name + "\n";
      for (Recordset rows = file.OpenRecordset(mustWork, "SELECT * FROM [" + table.Name + "]");
           !rows.AtEnd(); rows.MoveNext()) {
        for (const Field& field : table.Fields) {
          if (field.Name != "ID") content += rows[field.Name].Get().Text() + "|";
        }
        content += "\n";
      }
    }
    return content;
  }

  TempFolder game_;
  TempFolder saves_;
  std::string older_;
  std::string newer_;
};

TEST_P(DiskTroubles, LeaveTheOlderFileWholeAndNothingElse) {
  int operations = 0;
  for (bool happened = true; happened; ++operations) {
    PutOlderBack();
    Outcome outcome;
    {
      const FailingDisk trouble(GetParam(), operations);
      outcome = Import();
      happened = trouble.Happened();
    }

    EXPECT_EQ(Content(), outcome.IsFinished ? newer_ : older_) << operations;
    EXPECT_TRUE(outcome.IsFinished || outcome.IsReported) << operations;
    EXPECT_FALSE(fs::exists(WorkFolder())) << operations;
    EXPECT_TRUE(Import().IsFinished) << operations;
    EXPECT_EQ(Content(), newer_) << operations;
  }
  EXPECT_GT(operations, 10);
}

TEST_P(DiskTroubles, LeaveNoFileWhereNoneWas) {
  for (int operations = 0;; ++operations) {
    fs::remove(Target());
    Outcome outcome;
    bool happened = false;
    {
      const FailingDisk trouble(GetParam(), operations);
      outcome = Import();
      happened = trouble.Happened();
    }

    EXPECT_EQ(Content(), outcome.IsFinished ? newer_ : "") << operations;
    EXPECT_FALSE(fs::exists(WorkFolder())) << operations;
    EXPECT_TRUE(Import().IsFinished) << operations;
    if (!happened) break;
  }
}

INSTANTIATE_TEST_SUITE_P(ErrorAndFull, DiskTroubles,
                         ::testing::Values(DiskTrouble::Error, DiskTrouble::Full));

}  // namespace
}  // namespace orrerix
