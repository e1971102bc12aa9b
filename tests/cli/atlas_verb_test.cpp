// SPDX-License-Identifier: MIT
#include "cli/command_line_fixture.h"
#include "db/engine/engine.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

// The thrusters and a ship of a universe of ours, in place of those of an import.
class AtlasVerb : public CommandLine {
 protected:
  AtlasVerb() {
    Import("--quiet");
    FailTest mustWork;
    orrerix::Database file = DBEngine::OpenDatabase(mustWork, folder.Path() / "u.fl");
    for (const char* statement :
         {"DROP TABLE IF EXISTS thruster", "DELETE FROM Ships", "DELETE FROM Ships_Hardpoints",
          "CREATE TABLE thruster (nickname TEXT(9), hp_type TEXT(20), max_force TEXT(9), "
          "power_usage TEXT(9))",
          "INSERT INTO thruster VALUES ('small', 'hp_small', '600', '100'), "
          "('large', NULL, '900', '100'), ('dead', NULL, NULL, '0')",
          "INSERT INTO Ships (NickName, RealName) VALUES ('gnat', 'The Gnat')",
          "INSERT INTO Ships_Hardpoints VALUES ('gnat', 'HP_Thruster', 'HpThruster01')"}) {
      EXPECT_TRUE(file.ExecuteNative(mustWork, statement)) << statement;
    }
  }

  Answer Atlas(const std::string& arguments) {
    return Run("atlas " + arguments + " " + Database());
  }
  nlohmann::json Thrusters(const std::string& arguments) {
    return Atlas("thrusters --json --columns nickname " + arguments).Json();
  }
};

TEST_F(AtlasVerb, ListsItsTables) {
  const nlohmann::json tables = Atlas("--json").Json();

  ASSERT_EQ(tables.size(), 16u);
  EXPECT_EQ(tables[0], (nlohmann::json{{"name", "ships"}, {"title", "Ships"}, {"rows", 1}}));
  EXPECT_EQ(tables[6],
            (nlohmann::json{{"name", "thrusters"}, {"title", "Thrusters"}, {"rows", 3}}));
  EXPECT_THAT(Atlas("").Output, StartsWith("ships           Ships                          1\n"));
}

TEST_F(AtlasVerb, GivesRowsAsJsonCsvAndText) {
  EXPECT_EQ(Atlas("Thrusters --json --columns NICKNAME,thrust,thrust_energy").Json(),
            nlohmann::json::parse(R"([
                {"nickname": "small", "thrust": 600, "thrust_energy": 6},
                {"nickname": "large", "thrust": 900, "thrust_energy": 9},
                {"nickname": "dead", "thrust": null, "thrust_energy": null}])"));
  EXPECT_EQ(Atlas("thrusters --csv --columns nickname,thrust").Output,
            "Nickname,Thrust (force)\r\nsmall,600\r\nlarge,900\r\ndead,\r\n");
  EXPECT_EQ(Atlas("thrusters --columns nickname,thrust").Output,
            "Nickname  Thrust (force)\n"
            "small                600\n"
            "large                900\n"
            "dead\n");
}

TEST_F(AtlasVerb, FiltersAndSorts) {
  using nlohmann::json;
  EXPECT_EQ(Thrusters("--filter 'thrust>600'"), json::parse(R"([{"nickname": "large"}])"));
  EXPECT_EQ(Thrusters("--filter nickname~A --filter thrust="),
            json::parse(R"([{"nickname": "dead"}])"));
  EXPECT_EQ(Thrusters("--filter 'energy_second>=100' --sort thrust:desc"),
            json::parse(R"([{"nickname": "large"}, {"nickname": "small"}])"));
}

TEST_F(AtlasVerb, KnowsWhatFitsAShip) {
  const auto fitting = nlohmann::json::parse(R"([{"nickname": "large"}, {"nickname": "dead"}])");
  EXPECT_EQ(Thrusters("--fits GNAT"), fitting);
  EXPECT_EQ(Thrusters("--fits 'the gnat'"), fitting);
}

TEST_F(AtlasVerb, ExplainsItsColumns) {
  EXPECT_THAT(Atlas("thrusters --explain").Output,
              HasSubstr("| `thrust_energy` | Thrust per energy (force/unit) | "
                        "max_force / power_usage |\n"));
  EXPECT_THAT(Atlas("--explain").Output, StartsWith("# Tables of the atlas\n"));
}

TEST_F(AtlasVerb, NamesWhatIsMisspelt) {
  const std::pair<const char*, const char*> cases[] = {
      {"thruster", "there is no table of the atlas named 'thruster'; did you mean 'thrusters'?"},
      {"thrusters --columns thrus", "'thrus'; did you mean 'thrust'?"},
      {"thrusters --sort thrus:desc", "'thrus'; did you mean 'thrust'?"},
      {"thrusters --filter thrus=1", "'thrus'; did you mean 'thrust'?"},
      {"thrusters --fits gnad", "there is no ship 'gnad'; did you mean 'gnat'?"}};
  for (const auto& [arguments, error] : cases) {
    const Answer answer = Atlas(arguments);
    EXPECT_EQ(answer.ExitCode, 1) << arguments;
    EXPECT_THAT(answer.Errors, HasSubstr(error));
    EXPECT_THAT(answer.Output, IsEmpty());
  }
}

TEST_F(AtlasVerb, RefusesWhatMakesNoSense) {
  for (const char* arguments :
       {"thrusters --filter thrust", "thrusters --filter 'thrust>much'", "thrusters --csv --json",
        "--csv", "--sort name", "--fits gnat", "engines --fits gnat", "thrusters --explain --csv",
        "--explain --json"}) {
    const Answer answer = Atlas(arguments);
    EXPECT_EQ(answer.ExitCode, 2) << arguments;
    EXPECT_THAT(answer.Output, IsEmpty()) << arguments;
  }
}

}  // namespace
}  // namespace orrerix
