// SPDX-License-Identifier: MIT
#include <csignal>

#include "cli/command_line_fixture.h"

namespace orrerix {
namespace {

using ::testing::HasSubstr;
using ::testing::MatchesRegex;

// A watch that runs beside the test, which reads its lines as they come.
class Watching : public CommandLine {
 protected:
  ~Watching() override {
    if (lines_ != nullptr) ClosePipe(lines_);
  }

  void Start(const std::string& more) {
    const std::string command = "echo $$; exec " + Program() + " watch --game " + Game().string() +
                                " " + Database() + " " + more + " 2>&1";
    lines_ = OpenPipe(command);
    process_ = std::stoi(Line());
  }

  // Waits for the next line.
  std::string Line() {
    std::string line;
    for (int c = fgetc(lines_); c != EOF && c != '\n'; c = fgetc(lines_)) {
      line += static_cast<char>(c);
    }
    return line;
  }
  nlohmann::json Round() { return nlohmann::json::parse(Line()); }

  int End(int signal) {
    kill(process_, signal);
    return ClosePipe(std::exchange(lines_, nullptr));
  }

  FILE* lines_ = nullptr;
  int process_ = 0;
};

TEST_F(Watching, TellsARoundForEachChange) {
  Start("--json --log " + (folder.Path() / "log.txt").string());
  const nlohmann::json first = Round();
  EXPECT_EQ(first["files"], 0);
  EXPECT_EQ(first["failures"], 0);
  EXPECT_EQ(first["summary"], nullptr);
  EXPECT_GT(first["log_lines"], 0);
  EXPECT_THAT(first["time"].get<std::string>(), MatchesRegex("[0-9]+:[0-9]+:[0-9]+"));

  folder.Write("game/DATA/MISSIONS/mbases.ini",
               "[MRoom]\r\nnickname = x_bar\r\nrate = 10\r\nrate = 20\r\n");
  const nlohmann::json second = Round();

  EXPECT_EQ(second["files"], 1);
  EXPECT_GE(second["seconds"], 0);
  EXPECT_EQ(second["log_lines"], first["log_lines"].get<int>() + 1);
  EXPECT_GT(second["summary"]["added"].get<int>() + second["summary"]["changed"].get<int>(), 0);
  EXPECT_THAT(Content(folder.Path() / "log.txt"), HasSubstr("x_bar"));
  EXPECT_EQ(Run("table mroom --where nickname=x_bar --json " + Database()).Json().size(), 1u);
  EXPECT_EQ(End(SIGTERM), 0);
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "u.fl.import"));
}

TEST_F(Watching, WaitsForAFolderThatVanished) {
  Start("--json");
  Round();
  std::filesystem::rename(folder.Path() / "game", folder.Path() / "away");
  folder.Write("away/DATA/new.ini", "x");
  std::filesystem::rename(folder.Path() / "away", folder.Path() / "game");

  const nlohmann::json second = Round();

  EXPECT_EQ(second["files"], 1);
  EXPECT_EQ(second["summary"]["added"], 0);
  EXPECT_EQ(End(SIGINT), 0);
}

TEST_F(Watching, CountsFindingsOfACheckIfAsked) {
  Start("--json --check");
  const nlohmann::json first = Round();
  folder.Write("game/DATA/MISSIONS/mbases.ini", "no section\r\n[MBase\r\n");
  const nlohmann::json second = Round();

  // The text before any section is a warning, the header without its end an error.
  EXPECT_GT(second["findings"]["error"], 0);
  EXPECT_GT(second["findings"]["warning"], 0);
  EXPECT_NE(second["findings"], first["findings"]);
  EXPECT_EQ(End(SIGTERM), 0);
}

TEST_F(Watching, TellsRoundsToPeopleToo) {
  Start("");
  const std::string line = Line();

  EXPECT_THAT(line, HasSubstr("  0 files, "));
  EXPECT_THAT(line, ::testing::EndsWith(" log lines, 0 failures"));
  EXPECT_EQ(End(SIGINT), 0);
}

TEST_F(CommandLine, AWatchNeedsAGameAndAUniverseFile) {
  EXPECT_EQ(Run("watch " + Database()).ExitCode, 2);
  EXPECT_EQ(Run("watch --game " + folder.Path().string()).ExitCode, 2);
  const Answer answer = Run("watch --game " + folder.Path().string() + " " + Database());
  EXPECT_EQ(answer.ExitCode, 1);
  EXPECT_THAT(answer.Errors, HasSubstr("is no game folder"));
}

}  // namespace
}  // namespace orrerix
