// SPDX-License-Identifier: MIT
#include "check/check.h"

#include "check/game_fixture.h"

namespace orrerix::check {
namespace {

class CheckGame : public CheckedGameTest {
 protected:
  CheckAnswer RunOverBase(const std::set<std::string>& only) {
    CheckOptions options;
    options.Game = Game();
    options.Base = Base();
    options.Only = only;
    return RunCheck(options);
  }
};

TEST_F(CheckGame, AFindingSaysWhereItIsAndWhatStandsThere) {
  Data("goods", "");
  Data("markets", "[BaseGood]\nBase = Li01_01_Base\n  MarketGood = Silver, 0, 1, 1, 1, 0, 1\n");

  const auto findings = Run({"market-good"}).Findings;

  ASSERT_EQ(findings.size(), 1u);
  const Finding& finding = findings.front();
  EXPECT_EQ(finding.Severity, Severity::Error);
  EXPECT_EQ(finding.Layer, Layer::Game);
  EXPECT_EQ(finding.File, "DATA/markets2.ini");
  EXPECT_EQ(finding.Line, 3);
  EXPECT_EQ(finding.Column, 3);
  EXPECT_EQ(finding.Section, "BaseGood");
  EXPECT_EQ(finding.Nickname, "Li01_01_Base");
  EXPECT_EQ(finding.Key, "MarketGood");
  EXPECT_EQ(finding.Value, "Silver, 0, 1, 1, 1, 0, 1");
  EXPECT_EQ(finding.Message, "good does not exist: Silver");
}

TEST_F(CheckGame, OnlyAndSkipChooseTheRules) {
  Data("constants", "a\n[B\nc\n");
  WriteConfiguration();
  CheckOptions options;
  options.Game = Game();
  options.Skip = {"files-absent", "no-equals"};
  EXPECT_EQ(RunCheck(options).Findings.size(), 2u);

  options.Only = {"no-equals", "bad-header"};
  EXPECT_EQ(RunCheck(options).Findings.size(), 1u);
}

TEST_F(CheckGame, AFileOfTheGameHidesThatOfTheBase) {
  BaseFile("EXE/freelancer.ini", "[Data]\ngoods = goods.ini\nmarkets = markets.ini\n");
  BaseFile("DATA/goods.ini", "[Good]\nnickname = gold\n");
  BaseFile("DATA/markets.ini", "[BaseGood]\nbase = b\nMarketGood = gold, 0, 1, 1, 1, 0, 1\n");
  File("data/GOODS.INI", "[Good]\nnickname = silver\n");

  const auto findings = RunOverBase({"market-good"}).Findings;

  ASSERT_EQ(findings.size(), 1u);
  EXPECT_EQ(findings.front().Layer, Layer::Base);
  EXPECT_EQ(findings.front().File, "DATA/markets.ini");
}

TEST_F(CheckGame, WhatTheBaseAloneHasAlreadyIsNotSaid) {
  BaseFile("EXE/freelancer.ini", "[Data]\ngoods = goods.ini\nmarkets = markets.ini\n");
  BaseFile("DATA/goods.ini", "");
  BaseFile("DATA/markets.ini", "[BaseGood]\nbase = b\nMarketGood = gold, 0, 1, 1, 1, 0, 1\n");
  File("DATA/other.ini", "");

  EXPECT_THAT(RunOverBase({"market-good"}).Findings, IsEmpty());
  EXPECT_THAT(RunOverBase({"file-missing"}).Findings, IsEmpty());
}

TEST_F(CheckGame, FindingsOfTheBaselineDoNotCount) {
  Data("constants", "[A]\na\nb\n");
  const auto before = Run({"no-equals"}).Findings;
  ASSERT_EQ(before.size(), 2u);
  CheckOptions options;
  options.Game = Game();
  options.Only = {"no-equals"};
  options.Baseline = {before[0].Fingerprint, "gone"};

  const CheckAnswer answer = RunCheck(options);

  EXPECT_EQ(answer.Count(Severity::Warning), 1u);
  EXPECT_EQ(answer.Findings[0].State, FindingState::InBaseline);
  EXPECT_EQ(answer.Gone, std::set<std::string>{"gone"});
}

TEST_F(CheckGame, AFingerprintOutlivesOtherLines) {
  Data("constants", "[A]\na\n");
  const std::string before = Run({"no-equals"}).Findings.front().Fingerprint;
  File("DATA/constants1.ini", "; a comment\n[A]\nkey = value\n\na\n");

  EXPECT_EQ(Run({"no-equals"}).Findings.front().Fingerprint, before);
}

TEST_F(CheckGame, NeedsAConfiguration) {
  CheckOptions options;
  options.Game = folder.Path();
  EXPECT_THROW(static_cast<void>(RunCheck(options)), CannotCheck);

  WriteConfiguration();
  options.Game = Game();
  options.Base = folder.Path() / "none";
  EXPECT_THROW(static_cast<void>(RunCheck(options)), CannotCheck);
}

TEST_F(CheckGame, CanBeCancelled) {
  Data("constants", "[A]\na\n");
  WriteConfiguration();
  CheckOptions options;
  options.Game = Game();
  std::size_t last = 0;

  const CheckAnswer answer = RunCheck(options, [&last](std::size_t steps) {
    last = steps;
    return steps < 2;
  });

  EXPECT_TRUE(answer.Cancelled);
  EXPECT_THAT(answer.Findings, IsEmpty());
  EXPECT_EQ(last, 2u);
}

TEST_F(CheckGame, OddFilesDoNotStopIt) {
  Data("goods", std::string_view("\0\0[;=,\n[\n=\n,=,\n=,,\n]\n", 21));
  Data("markets", "BINI");
  Data("universe",
       "[System]\nfile = ..\\..\\..\n[System]\nfile = \\\n[System]\nfile = universe1.ini");
  File("EXE/a.dll", "MZ");
  Library("a.dll");
  Library("");

  EXPECT_FALSE(Run().Findings.empty());
}

}  // namespace
}  // namespace orrerix::check
