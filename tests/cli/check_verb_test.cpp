// SPDX-License-Identifier: MIT
#include "cli/command_line_fixture.h"

namespace orrerix {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

// A game with one warning, no error, and one note about absent files.
class CheckVerb : public CommandLine {
 protected:
  void SetUp() override {
    folder.Write("game/EXE/freelancer.ini", "[Data]\nconstants = a.ini\n");
    folder.Write("game/DATA/a.ini", "[A]\nno equals\n");
  }

  Answer Check(const std::string& more = "") {
    return Run("check --game " + (folder.Path() / "game").string() + " " + more);
  }
  std::string File(const std::string& name) const { return (folder.Path() / name).string(); }
};

TEST_F(CheckVerb, PrintsFindingsAndSums) {
  const Answer answer = Check();

  EXPECT_EQ(answer.ExitCode, 0);
  EXPECT_EQ(
      answer.Output,
      File("game") + "/DATA/a.ini:2: warning: the line has no \"=\": no equals [no-equals]\n" +
          File("game") +
          "/EXE/freelancer.ini:1: note: files that the game expects are not in this folder: 4 "
          "[files-absent]\n\n1 warning no-equals\n1 note files-absent\n"
          "0 errors, 1 warnings, 1 notes; 0 suppressed, 0 in the baseline (0 gone)\n");
  EXPECT_THAT(answer.Errors, IsEmpty());
}

TEST_F(CheckVerb, QuietPrintsTheLastLine) {
  EXPECT_EQ(Check("--quiet").Output,
            "0 errors, 1 warnings, 1 notes; 0 suppressed, 0 in the baseline (0 gone)\n");
}

TEST_F(CheckVerb, FailsFromAChosenSeverityOn) {
  EXPECT_EQ(Check("--fail-on error").ExitCode, 0);
  EXPECT_EQ(Check("--fail-on warning").ExitCode, 3);
  EXPECT_EQ(Check("--fail-on note").ExitCode, 3);
  EXPECT_EQ(Check("--fail-on never").ExitCode, 0);
  EXPECT_EQ(Check("--fail-on warning --only files-absent").ExitCode, 0);
  EXPECT_EQ(Check("--fail-on note --only files-absent").ExitCode, 3);
}

TEST_F(CheckVerb, FailsOnAnErrorByDefault) {
  folder.Write("game/DATA/a.ini", "[A\n");

  EXPECT_EQ(Check().ExitCode, 3);
}

TEST_F(CheckVerb, PrintsJson) {
  for (const char* words : {"--json", "--format json"}) {
    const nlohmann::json json = Check(words).Json();
    EXPECT_EQ(json["game"], File("game"));
    EXPECT_EQ(json["base"], nullptr);
    EXPECT_EQ(json["findings"].size(), 2u);
  }
}

TEST_F(CheckVerb, PrintsSarif) {
  EXPECT_EQ(Check("--format sarif").Json()["runs"][0]["results"].size(), 2u);
}

TEST_F(CheckVerb, WritesTheReportToAFile) {
  const Answer answer = Check("--quiet --output " + File("report.txt"));

  EXPECT_THAT(answer.Output, IsEmpty());
  EXPECT_THAT(Content(File("report.txt")), StartsWith("0 errors, 1 warnings"));
}

TEST_F(CheckVerb, ChoosesRules) {
  EXPECT_EQ(Check("--only no-equals,bad-header --json").Json()["summary"]["rules"],
            nlohmann::json::parse(R"({"no-equals": 1})"));
  EXPECT_EQ(Check("--skip no-equals --skip bad-header --json").Json()["summary"]["rules"],
            nlohmann::json::parse(R"({"files-absent": 1})"));
}

TEST_F(CheckVerb, ABaselineHidesWhatIsKnown) {
  const Answer written = Check("--fail-on note --write-baseline " + File("known.json"));
  EXPECT_EQ(written.ExitCode, 0);
  EXPECT_EQ(nlohmann::json::parse(Content(File("known.json")))["findings"].size(), 2u);

  const Answer known = Check("--fail-on note --quiet --baseline " + File("known.json"));
  EXPECT_EQ(known.ExitCode, 0);
  EXPECT_EQ(known.Output,
            "0 errors, 0 warnings, 0 notes; 0 suppressed, 2 in the baseline (0 gone)\n");

  folder.Write("game/DATA/a.ini", "[A]\nother line\n");
  const Answer changed = Check("--fail-on warning --quiet --baseline " + File("known.json"));
  EXPECT_EQ(changed.ExitCode, 3);
  EXPECT_EQ(changed.Output,
            "0 errors, 1 warnings, 0 notes; 0 suppressed, 1 in the baseline (1 gone)\n");
}

TEST_F(CheckVerb, WhatIsNotLookedForIsNotGone) {
  Check("--write-baseline " + File("known.json"));

  EXPECT_THAT(Check("--quiet --only bad-header --baseline " + File("known.json")).Output,
              EndsWith("0 in the baseline (0 gone)\n"));
}

TEST_F(CheckVerb, WrongWordsAreWrongUsage) {
  for (const char* words : {"--only nonsense", "--skip no-equals,nonsense", "--format xml",
                            "--fail-on always", "--only ''", "--loud", "--explain nonsense"}) {
    const Answer answer = Check(words);
    EXPECT_EQ(answer.ExitCode, 2) << words;
    EXPECT_THAT(answer.Output, IsEmpty()) << words;
  }
  EXPECT_EQ(Run("check").ExitCode, 2);
}

TEST_F(CheckVerb, WhatCannotBeDoneIsSaidInOneLine) {
  folder.Write("bad.json", "{}");
  folder.Write("empty/DATA/a.ini", "");
  for (const std::string& words :
       {"check --game " + File("none"), "check --game " + File("empty"),
        "check --game " + File("game") + " --base " + File("empty"),
        "check --game " + File("game") + " --baseline " + File("none.json"),
        "check --game " + File("game") + " --baseline " + File("bad.json"),
        "check --game " + File("game") + " --output " + File("none/report.txt"),
        "check --game " + File("game") + " --write-baseline " + File("none/b.json")}) {
    const Answer answer = Run(words);
    EXPECT_EQ(answer.ExitCode, 1) << words;
    EXPECT_THAT(answer.Errors, StartsWith("orrerix-cli: ")) << words;
    EXPECT_EQ(std::count(answer.Errors.begin(), answer.Errors.end(), '\n'), 1) << words;
  }
}

TEST_F(CheckVerb, ExplainsARuleWithoutAGame) {
  const Answer answer = Run("check --explain market-good");

  EXPECT_EQ(answer.ExitCode, 0);
  EXPECT_THAT(answer.Output, StartsWith("market-good (error): "));
  EXPECT_THAT(Run("check --explain all").Output, HasSubstr("| `zone-encounter` | error |"));
}

}  // namespace
}  // namespace orrerix
