// SPDX-License-Identifier: MIT
// What the check finds in a real mod. Every error was looked up in the files by hand and is true.
#include "check/check.h"

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "check/report/reports.h"

namespace orrerix::check {
namespace {

CheckAnswer CheckRealGame() {
  CheckOptions options;
  options.Game = ORRERIX_REAL_GAME;
  return RunCheck(options);
}

TEST(CheckOfRealData, FindsTheseByRule) {
  const std::map<std::string, std::size_t> expected = {
      {"bad-bytes", 1},          {"base-no-object", 17},
      {"file-case", 1},          {"files-absent", 1},
      {"forgotten-header", 3},   {"goto-target", 3},
      {"hardpoint-unknown", 88}, {"jump-one-way", 2},
      {"key-duplicate", 1},      {"market-duplicate", 1},
      {"missing-comma", 1},      {"mount-impossible", 8},
      {"nickname-duplicate", 6}, {"number-range", 3},
      {"object-outside-map", 2}, {"relation-asymmetric", 22},
      {"relation-missing", 41},  {"system-unreachable", 7},
      {"text-library", 3},       {"text-missing", 1}};

  EXPECT_EQ(CountByRule(CheckRealGame()), expected);
}

TEST(CheckOfRealData, FindsTheseErrorsAtTheirLines) {
  std::vector<std::string> errors;
  for (const Finding& finding : CheckRealGame().Findings) {
    if (finding.Severity != Severity::Error) continue;
    const std::string name = std::filesystem::path(finding.File).filename().string();
    errors.push_back(fmt::format("{}:{} {}", name, finding.Line, finding.Rule));
  }

  EXPECT_THAT(
      errors,
      ::testing::ElementsAre(
          "bmod_good_blaster.ini:705 forgotten-header", "goods.ini:2041 text-missing",
          "market_ships.ini:17 missing-comma", "misc_equip.ini:732 text-library",
          "misc_equip.ini:746 text-library", "misc_good.ini:856 nickname-duplicate",
          "mbases.ini:10818 forgotten-header", "mbases.ini:10822 forgotten-header",
          "shiparch.ini:4304 text-library", "bm01.ini:144 nickname-duplicate",
          "hi01.ini:1262 goto-target", "iw01.ini:193 goto-target", "iw02.ini:254 goto-target",
          "li04.ini:1213 nickname-duplicate", "li04.ini:1234 nickname-duplicate",
          "li04.ini:1802 nickname-duplicate", "li04.ini:2316 nickname-duplicate"));
}

}  // namespace
}  // namespace orrerix::check
