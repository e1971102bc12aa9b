// SPDX-License-Identifier: MIT
// What a script relies on in an import's answer, and in the help.
#include "cli/command_line_fixture.h"

namespace orrerix {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class AnImportForScripts : public CommandLine {
 protected:
  // A game with one file whose log entry holds a block of lines.
  Answer ImportWithLog(const std::string& more) {
    const std::filesystem::path game = Game();
    folder.Write("game/DATA/MISSIONS/mbases.ini",
                 "[MRoom]\r\nnickname = bar\r\nrate = 10\r\nrate = 20\r\n");
    return Run("import --game " + game.string() + " " + Database() + " " + more);
  }
  std::filesystem::path LogFile() const { return folder.Path() / "log.txt"; }
};

TEST_F(AnImportForScripts, GivesTheEntriesOfTheLog) {
  const nlohmann::json json = ImportWithLog("--json --log " + LogFile().string()).Json();

  std::string text;
  for (const auto& entry : json["log"]) text += entry.get<std::string>() + "\n";
  EXPECT_EQ(json["log"].size(), json["log_lines"]);
  EXPECT_THAT(text, HasSubstr("[MRoom]\nnickname = bar\nrate = 10\nrate = 20\n"));
  EXPECT_EQ(text, Content(LogFile()));
}

TEST_F(AnImportForScripts, HasOneKindOfLineEndInItsLog) {
  const std::string printed = ImportWithLog("").Output;
  ImportWithLog("--quiet --log " + LogFile().string());

  EXPECT_THAT(printed, HasSubstr("[MRoom]\nnickname = bar\n"));
  EXPECT_THAT(printed, Not(HasSubstr("\r")));
  EXPECT_THAT(Content(LogFile()), Not(HasSubstr("\r")));
}

TEST_F(AnImportForScripts, PrintsNothingIfItIsToBeQuiet) {
  const Answer answer = ImportWithLog("--quiet");

  EXPECT_EQ(answer.ExitCode, 0);
  EXPECT_THAT(answer.Output, IsEmpty());
  EXPECT_THAT(answer.Errors, IsEmpty());
}

TEST_F(AnImportForScripts, PrintsFailuresAlsoIfItIsToBeQuiet) {
  const std::filesystem::path game = Game();
  folder.Write("game/DATA/MISSIONS/mbases.ini", "[Systems]\r\nnickname = x\r\n");

  const Answer answer = Run("import --quiet --game " + game.string() + " " + Database());

  EXPECT_THAT(answer.Output, IsEmpty());
  EXPECT_THAT(answer.Errors, HasSubstr("3010 in OrrerixMain.ReadINI"));
}

TEST_F(AnImportForScripts, AnswersInJsonAlsoIfItIsToBeQuiet) {
  EXPECT_EQ(ImportWithLog("--quiet --json").Json()["tables"]["Version"], 1);
}

TEST_F(CommandLine, HelpSaysWhatAVerbNeeds) {
  EXPECT_THAT(
      Run("import --help").Output,
      HasSubstr("Usage: orrerix-cli import --game DIR [--log FILE] [--strict] [--quiet]\n"));
  EXPECT_THAT(
      Run("table --help").Output,
      HasSubstr("Usage: orrerix-cli table NAME [--columns A,B,...] [--where COLUMN=TEXT]...\n"
                "        [--sort COLUMN[:desc]]... [--limit N] [--csv]\n"));
  EXPECT_THAT(Run("station --help").Output, HasSubstr("[--mode {#,$,I,2,3}]"));
  EXPECT_THAT(Run("way --help").Output, HasSubstr("Needs a universe file"));
  EXPECT_THAT(Run("--help").Output, HasSubstr("orrerix-cli VERB --help"));
}

TEST_F(CommandLine, SearchAndSellersTakeWhatSearchPrints) {
  Import();
  const nlohmann::json ships = Run("search ship '' --json " + Database()).Json();
  const std::string nickname = ships[0]["nickname"];
  const std::string name = ships[0]["realname"];
  const std::string line = nickname + "\t" + name;
  const Answer sellers = Run("sellers ship " + nickname + " " + Database());
  ASSERT_EQ(sellers.ExitCode, 0);

  EXPECT_EQ(Run("sellers ship '" + line + "' " + Database()).Output, sellers.Output);
  EXPECT_EQ(Run("sellers ship '" + name + "' " + Database()).ExitCode, 0);
  EXPECT_EQ(Run("search ship '" + line + "' " + Database()).Output, line + "\n");
  EXPECT_EQ(Run("search ship " + nickname + " " + Database()).Output, line + "\n");
  EXPECT_EQ(Run("search ship no_such_ship --json " + Database()).Json(), nlohmann::json::array());
  EXPECT_EQ(Run("sellers ship no_such_ship " + Database()).ExitCode, 1);
}

TEST_F(CommandLine, AWayTakesPlacesThatSearchPrints) {
  Import();
  const nlohmann::json docks = Run("travel-times --json " + Database()).Json()["docks"];
  const auto way = [&](const std::string& to) {
    const std::string from = docks[0]["nickname"];
    return Run("way --json " + from + " '" + to + "' " + Database()).Json()["seconds"];
  };
  const std::string nickname = docks[1]["nickname"];
  const std::string name = docks[1]["name"];

  EXPECT_EQ(way(nickname + "\t" + name), way(nickname));
}

}  // namespace
}  // namespace orrerix
