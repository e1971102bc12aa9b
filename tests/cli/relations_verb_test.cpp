// SPDX-License-Identifier: MIT
#include "cli/command_line_fixture.h"
#include "shell/game_record.h"

namespace orrerix {
namespace {

using ::testing::HasSubstr;

// The navy hates the rogues, who do not care; the demo game names its own file of groups.
class RelationsVerb : public CommandLine {
 protected:
  RelationsVerb() {
    Import("--quiet");
    folder.Write("other/DATA/initialworld.ini",
                 "[Group]\nnickname = navy\nrep = -0.65, rogues\nrep = 0.91, navy\n"
                 "[Group]\nnickname = rogues\nrep = 0.1, navy\n");
  }

  Answer Relations(const std::string& arguments) {
    return Run("relations " + arguments + " " + Database());
  }
  std::string Other() { return "--game " + (folder.Path() / "other").string(); }
};

TEST_F(RelationsVerb, ListsWhatIsStated) {
  EXPECT_EQ(Relations(Other()).Output,
            "navy\tnavy\t0.91\tallied\nnavy\trogues\t-0.65\thostile\nrogues\tnavy\t0.1\tneutral\n");
  EXPECT_EQ(Relations("ROGUES " + Other()).Output, "rogues\tnavy\t0.1\tneutral\n");
}

TEST_F(RelationsVerb, GivesAMatrixAsCsv) {
  EXPECT_EQ(Relations("--csv " + Other()).Output,
            "Faction,navy,rogues\r\nnavy,0.91,-0.65\r\nrogues,0.1,\r\n");
}

TEST_F(RelationsVerb, GivesNumbersAsJson) {
  EXPECT_EQ(Relations("rogues --json " + Other()).Json(), nlohmann::json::parse(R"([
                {"nickname": "rogues", "name": "rogues", "towards": [
                  {"nickname": "navy", "name": "navy", "value": 0.1, "attitude": "neutral"}]}])"));
}

TEST_F(RelationsVerb, TakesTheGameThatTheUniverseCameFrom) {
  EXPECT_THAT(Relations("rogues").Errors, HasSubstr("needs --game"));
  ASSERT_TRUE(WriteGameRecord(folder.Path() / "u.fl", {(folder.Path() / "other").string(), 1}));

  EXPECT_EQ(Relations("rogues").Output, "rogues\tnavy\t0.1\tneutral\n");
}

TEST_F(RelationsVerb, SaysWhatItCannotDo) {
  const Answer unknown = Relations("rouges " + Other());
  EXPECT_EQ(unknown.ExitCode, 1);
  EXPECT_THAT(unknown.Errors, HasSubstr("rogues"));
  const Answer nowhere = Relations("--game " + (folder.Path() / "none").string());
  EXPECT_EQ(nowhere.ExitCode, 1);
  EXPECT_THAT(nowhere.Errors, HasSubstr("names no factions"));
  EXPECT_EQ(Relations("--csv --json " + Other()).ExitCode, 2);
}

}  // namespace
}  // namespace orrerix
