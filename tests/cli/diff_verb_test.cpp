// SPDX-License-Identifier: MIT
#include "cli/command_line_fixture.h"
#include "db/engine/engine.h"
#include "support/environment.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

// Universe files with one table.
class Differences : public CommandLine {
 protected:
  std::string File(const std::string& name, const std::string& rows) {
    FailTest mustWork;
    const std::filesystem::path path = folder.Path() / name;
    orrerix::Database file = DBEngine::CreateDatabase(mustWork, path, JetVersionOption::Version30);
    file.ExecuteNative(mustWork, "CREATE TABLE Version (Version TEXT(20))");
    file.ExecuteNative(mustWork, "INSERT INTO Version VALUES ('" + name + "')");
    file.ExecuteNative(mustWork,
                       "CREATE TABLE Goods (ID LONG INT, nickname TEXT(20), price LONG INT)");
    file.ExecuteNative(mustWork, "INSERT INTO Goods VALUES " + rows);
    return path.string();
  }

  std::string old = File("old.fl", "(1, 'gold', 5), (2, 'oil', 7)");
  std::string now = File("new.fl", "(3, 'tea', 2), (4, 'Gold', 6)");
};

TEST_F(Differences, AreOneJsonDocument) {
  const Answer answer = Run("diff " + old + " " + now + " --json");

  EXPECT_EQ(answer.ExitCode, 0);
  EXPECT_EQ(answer.Json(), nlohmann::json::parse(R"({
      "tables": {"Goods": {
          "added": [{"nickname": "tea", "price": 2}],
          "removed": [{"nickname": "oil", "price": 7}],
          "changed": [{"key": {"nickname": "Gold"},
                       "fields": {"nickname": ["gold", "Gold"], "price": [5, 6]}}]}},
      "summary": {"added": 1, "removed": 1, "changed": 1,
                  "tables_added": [], "tables_removed": []}})"));
}

TEST_F(Differences, FailOnlyIfAsked) {
  EXPECT_EQ(Run("diff " + old + " " + now).ExitCode, 0);
  EXPECT_EQ(Run("diff --fail-on-difference " + old + " " + now).ExitCode, 3);
  EXPECT_EQ(Run("diff --fail-on-difference " + old + " " + old).ExitCode, 0);
}

TEST_F(Differences, AreTextOrMarkdownOrHtml) {
  const std::string both = old + " " + now;
  EXPECT_THAT(Run("diff " + both).Output,
              StartsWith("From old.fl to new.fl: 1 row added, 1 removed, 1 changed\n"));
  EXPECT_THAT(Run("diff --markdown " + both).Output, StartsWith("# From old.fl to new.fl\n"));
  EXPECT_THAT(Run("diff --html " + both).Output, StartsWith("<!DOCTYPE html>\n"));
  EXPECT_EQ(Run("diff --html --markdown " + both).ExitCode, 2);
  EXPECT_EQ(Run("diff --html --json " + both).ExitCode, 2);
}

TEST_F(Differences, AreThoseOfTheTablesAskedFor) {
  const std::string both = old + " " + now;
  EXPECT_EQ(Run("diff --tables goods --json " + both).Json()["summary"]["added"], 1);
  EXPECT_EQ(Run("diff --tables Version --json " + both).Json()["tables"], nlohmann::json::object());
  const Answer answer = Run("diff --tables Goods,God " + both);
  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_EQ(answer.Errors, "orrerix-cli: there is no table 'God'; did you mean 'Goods'?\n");
}

TEST_F(Differences, NeedTwoSidesThatAreThere) {
  EXPECT_EQ(Run("diff " + old).ExitCode, 2);
  const Answer answer = Run("diff " + old + " nowhere.fl");
  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_THAT(answer.Errors, HasSubstr("nowhere.fl"));
  EXPECT_EQ(Run("diff " + folder.Path().string() + " " + now).ExitCode, 1);
}

TEST_F(Differences, OfGameFoldersLeaveNoFileBehind) {
  const std::filesystem::path temporary = folder.Path() / "tmp";
  std::filesystem::create_directory(temporary);
  const EnvironmentVariable variable("TMPDIR", temporary.string());
  const std::string game = Game().string();
  Import("--quiet");

  const Answer same =
      Run("diff --fail-on-difference " + game + " " + folder.Path().string() + "/u.fl");
  std::filesystem::remove(folder.Path() / "game/DATA/MISSIONS/mbases.ini");
  const Answer other = Run("diff --json " + game + " " + folder.Path().string() + "/u.fl");

  EXPECT_EQ(same.ExitCode, 0) << same.Output;
  EXPECT_GT(other.Json()["summary"]["added"], 0);
  EXPECT_TRUE(std::filesystem::is_empty(temporary));
}

TEST_F(Differences, OfAGameFolderCountItsFailuresAsAnsweredOk) {
  const std::string game = Game().string();
  folder.Write("game/DATA/MISSIONS/mbases.ini",
               "[Systems]\r\nnickname = x\r\n[mroom]\r\nnickname = bar\r\n");

  const Answer answer = Run("diff --on-failure cancel --json " + old + " " + game);

  EXPECT_EQ(answer.ExitCode, 0);
  EXPECT_THAT(answer.Json()["summary"]["tables_added"], ::testing::Contains("mroom"));
  EXPECT_THAT(answer.Errors, HasSubstr("3010"));
}

}  // namespace
}  // namespace orrerix
