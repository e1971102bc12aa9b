// SPDX-License-Identifier: MIT
#include "check/suppressions.h"

#include "check/game_fixture.h"

namespace orrerix::check {
namespace {

class CommentsThatHide : public CheckedGameTest {
 protected:
  // "line rule" of the findings that still count.
  std::vector<std::string> Counted(std::string_view text) {
    Data("constants", text);
    std::vector<std::string> counted;
    for (const Finding& finding :
         Run({"no-equals", "bad-header", "text-before-section", "forgotten-header"}).Findings) {
      if (finding.State != FindingState::Counted) continue;
      counted.push_back(fmt::format("{} {}", finding.Line, finding.Rule));
    }
    return counted;
  }
};

TEST_F(CommentsThatHide, TheFindingsOfTheirLine) {
  EXPECT_THAT(Counted("[A]\na ; check: ignore\nb\nc ;CHECK:  Ignore\n"),
              ElementsAre("3 no-equals"));
}

TEST_F(CommentsThatHide, TheFindingsOfTheNextLineThatIsMoreThanComment) {
  EXPECT_THAT(
      Counted("[A]\n; check: ignore bad-header\n; why\n\n ; check: ignore no-equals\na\nb\n"),
      ElementsAre("7 no-equals"));
}

TEST_F(CommentsThatHide, OnlyTheRulesThatTheyName) {
  EXPECT_THAT(Counted("[A]\na ; check: ignore bad-header, no-equals\n"
                      "b ; check: ignore bad-header\nc ; check: ignore unknown\n"),
              ElementsAre("3 no-equals", "4 no-equals"));
}

TEST_F(CommentsThatHide, AtAHeaderTheFindingsOfItsSection) {
  EXPECT_THAT(Counted("[A] ; check: ignore no-equals\na\nb\n[B]\nc\n"
                      "; check: ignore\n[C\nd\n"),
              ElementsAre("5 no-equals"));
}

TEST_F(CommentsThatHide, AtAHeaderThoseOfThePartsThatAreCutOff) {
  Data("goods", "[Good] ; check: ignore\nnickname = a\nnickname = b\nc\n[Good]\nd\n");

  EXPECT_THAT(Counted(""), ElementsAre("6 no-equals"));
}

TEST_F(CommentsThatHide, AnywhereTheFindingsOfTheirFile) {
  EXPECT_THAT(Counted("x\n[A]\na\n[B\n; check: ignore-file no-equals, text-before-section\n"),
              ElementsAre("4 bad-header"));
}

TEST_F(CommentsThatHide, EveryRuleOfTheirFile) {
  EXPECT_THAT(Counted("x\n[A]\na\n[B\n; check: ignore-file\n"), IsEmpty());
}

TEST_F(CommentsThatHide, AfterAnotherComment) {
  EXPECT_THAT(Counted("[A]\na ; as before ; check: ignore\n"), IsEmpty());
}

TEST_F(CommentsThatHide, NothingIfTheySaySomethingElse) {
  EXPECT_THAT(Counted("[A]\na ; check: ignored\nb ; please check: ignore\nc ; check ignore\n"),
              ElementsAre("2 no-equals", "3 no-equals", "4 no-equals"));
}

TEST_F(CommentsThatHide, TheFindingsOfAFileThatIsNotReadOtherwise) {
  OneSystem("");
  File("DATA/UNIVERSE/SYSTEMS/LI02/old.ini", "; check: ignore-file\n");

  const auto findings = Run({"system-file-unused"}).Findings;
  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ(findings.front().State, FindingState::Suppressed);
}

}  // namespace
}  // namespace orrerix::check
