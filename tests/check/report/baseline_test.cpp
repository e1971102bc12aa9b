// SPDX-License-Identifier: MIT
#include "check/report/baseline.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace orrerix::check {
namespace {

TEST(Baseline, HoldsAllFindingsThatAreNotSuppressed) {
  CheckAnswer answer;
  for (const FindingState state :
       {FindingState::Counted, FindingState::Suppressed, FindingState::InBaseline}) {
    Finding finding;
    finding.Rule = "market-good";
    finding.File = "DATA/a.ini";
    finding.Fingerprint = std::to_string(static_cast<int>(state));
    finding.State = state;
    answer.Findings.push_back(finding);
  }

  const auto json = nlohmann::json::parse(BaselineText(answer));

  EXPECT_EQ(json, nlohmann::json::parse(R"({"version": 1, "findings": [
    {"fingerprint": "0", "rule": "market-good", "file": "DATA/a.ini"},
    {"fingerprint": "2", "rule": "market-good", "file": "DATA/a.ini"}]})"));
}

TEST(Baseline, IsReadBack) {
  const auto entries = ParseBaseline(
      R"({"version": 1, "findings": [{"fingerprint": "f", "rule": "r", "file": "a.ini"}]})", "b");

  ASSERT_EQ(entries.size(), 1u);
  EXPECT_EQ(entries.front().Fingerprint, "f");
  EXPECT_EQ(entries.front().Rule, "r");
  EXPECT_EQ(entries.front().File, "a.ini");
}

TEST(Baseline, ThatIsNoneIsRefused) {
  for (const char* text :
       {"", "[]", "{}", R"({"version": 2, "findings": []})", R"({"version": 1})",
        R"({"version": 1, "findings": {}})", R"({"version": 1, "findings": [5]})",
        R"({"version": 1, "findings": [{"rule": "r"}]})",
        R"({"version": 1, "findings": [{"fingerprint": 5}]})"}) {
    EXPECT_THROW(static_cast<void>(ParseBaseline(text, "b.json")), CannotCheck) << text;
  }
}

}  // namespace
}  // namespace orrerix::check
