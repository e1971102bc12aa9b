// SPDX-License-Identifier: MIT
#include "check/fingerprints.h"

#include <gmock/gmock.h>

namespace orrerix::check {
namespace {

Finding AtLine(int line, const std::string& message) {
  Finding finding;
  finding.Rule = "market-good";
  finding.File = "DATA/markets1.ini";
  finding.Line = line;
  finding.Section = "BaseGood";
  finding.Nickname = "Li01_01_Base";
  finding.Key = "MarketGood";
  finding.Value = "Silver, 0";
  finding.Message = message;
  return finding;
}

// printf 'market-good\ndata/markets1.ini\nbasegood\nli01_01_base\nmarketgood\nsilver, 0\n1' |
// sha256sum, and the same with a 2
TEST(Fingerprints, AreTheHashOfWhatFindingsHaveInCommonAndTheirNumber) {
  const auto ordered = InOrderWithFingerprints({AtLine(9, "b"), AtLine(4, "a")});

  ASSERT_EQ(ordered.size(), 2u);
  EXPECT_EQ(ordered[0].Line, 4);
  EXPECT_EQ(ordered[0].Fingerprint, "708fd53d16880835");
  EXPECT_EQ(ordered[1].Fingerprint, "d9e0043c3a99df9f");
}

TEST(Fingerprints, StandInTheOrderOfFileLineRuleKeyValueAndMessage) {
  const auto with = [](auto change) {
    Finding finding = AtLine(5, "m");
    change(finding);
    return finding;
  };
  const auto ordered = InOrderWithFingerprints({
      with([](Finding& f) { f.File = "DATA/a.ini"; }),
      with([](Finding& f) { f.File = "DATA/Z.ini"; }),
      with([](Finding& f) { f.Rule = "a-rule"; }),
      with([](Finding& f) { f.Key = "A"; }),
      with([](Finding& f) { f.Value = "b"; }),
      with([](Finding& f) { f.Value = "A"; }),
      with([](Finding& f) { f.Message = "a"; }),
      with([](Finding&) {}),
      with([](Finding& f) { f.Line = 40; }),
  });

  std::vector<std::string> seen;
  for (const Finding& f : ordered) {
    seen.push_back(f.File.substr(5, 1) + "|" + std::to_string(f.Line) + "|" + f.Rule.substr(0, 1) +
                   "|" + f.Key.substr(0, 2) + "|" + f.Value.substr(0, 1) + "|" + f.Message);
  }
  EXPECT_THAT(seen, ::testing::ElementsAre("Z|5|m|Ma|S|m", "a|5|m|Ma|S|m", "m|5|a|Ma|S|m",
                                           "m|5|m|A|S|m", "m|5|m|Ma|A|m", "m|5|m|Ma|b|m",
                                           "m|5|m|Ma|S|a", "m|5|m|Ma|S|m", "m|40|m|Ma|S|m"));
}

}  // namespace
}  // namespace orrerix::check
