// SPDX-License-Identifier: MIT
#include "check/report/reports.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "check/rules/rule.h"

namespace orrerix::check {
namespace {

// An error of the game, a note of the base, one suppressed and one in the baseline.
CheckAnswer SomeAnswer() {
  CheckAnswer answer;
  Finding error;
  error.Rule = "market-good";
  error.File = "DATA/EQUIPMENT/a b.ini";
  error.Line = 7;
  error.Section = "BaseGood";
  error.Nickname = "li01";
  error.Key = "MarketGood";
  error.Value = "gold, 1";
  error.Message = "good does not exist: gold";
  error.Fingerprint = "0123456789abcdef";
  Finding note;
  note.Rule = "file-case";
  note.Severity = Severity::Note;
  note.Layer = Layer::Base;
  note.File = "EXE/freelancer.ini";
  note.Message = "lines: 1";
  note.Fingerprint = "1";
  note.Related = {{"DATA/x.ini", 3, Layer::Game}};
  Finding suppressed = error;
  suppressed.State = FindingState::Suppressed;
  Finding known = error;
  known.State = FindingState::InBaseline;
  answer.Findings = {error, suppressed, known, note};
  answer.Absent = {"data/a.ini"};
  answer.Gone = {"2", "3"};
  return answer;
}

const CheckedFolders kFolders{"/games/my mod/", "/games/base"};

TEST(TextReport, HasALineForEachFindingATableAndSums) {
  EXPECT_EQ(TextReport(SomeAnswer(), kFolders, false),
            "/games/my mod/DATA/EQUIPMENT/a b.ini:7: error: good does not exist: gold "
            "[market-good]\n"
            "/games/base/EXE/freelancer.ini:1: note: lines: 1 [file-case]\n"
            "\n"
            "1 error market-good\n"
            "1 note file-case\n"
            "1 errors, 0 warnings, 1 notes; 1 suppressed, 1 in the baseline (2 gone)\n");
}

TEST(TextReport, IsTheLastLineIfItIsToBeQuiet) {
  EXPECT_EQ(TextReport(SomeAnswer(), kFolders, true),
            "1 errors, 0 warnings, 1 notes; 1 suppressed, 1 in the baseline (2 gone)\n");
}

TEST(TextReport, OfNoFindingsIsAnEmptyLineAndSums) {
  EXPECT_EQ(TextReport({}, {"game", std::nullopt}, false),
            "\n0 errors, 0 warnings, 0 notes; 0 suppressed, 0 in the baseline (0 gone)\n");
}

TEST(JsonReport, HoldsTheFindingsThatCount) {
  const auto json = nlohmann::json::parse(JsonReport(SomeAnswer(), kFolders));

  EXPECT_EQ(json, nlohmann::json::parse(R"({
    "version": 1, "game": "/games/my mod/", "base": "/games/base",
    "findings": [
      {"rule": "market-good", "severity": "error", "layer": "game",
       "file": "DATA/EQUIPMENT/a b.ini", "line": 7, "section": "BaseGood", "nickname": "li01",
       "key": "MarketGood", "message": "good does not exist: gold",
       "fingerprint": "0123456789abcdef", "related": []},
      {"rule": "file-case", "severity": "note", "layer": "base", "file": "EXE/freelancer.ini",
       "line": 1, "section": "", "nickname": "", "key": "", "message": "lines: 1",
       "fingerprint": "1", "related": [{"file": "DATA/x.ini", "line": 3}]}],
    "absent": ["data/a.ini"],
    "summary": {"error": 1, "warning": 0, "note": 1, "suppressed": 1, "baseline": 1, "gone": 2,
                "rules": {"market-good": 1, "file-case": 1}}})"));
}

TEST(JsonReport, HasNoBaseWithoutOne) {
  const auto json = nlohmann::json::parse(JsonReport({}, {"game", std::nullopt}));

  EXPECT_TRUE(json["base"].is_null());
  EXPECT_EQ(json["findings"], nlohmann::json::array());
  EXPECT_EQ(json["summary"]["rules"], nlohmann::json::object());
}

TEST(SarifReport, DescribesTheToolAndAllRules) {
  const auto json = nlohmann::json::parse(SarifReport(SomeAnswer(), kFolders));

  EXPECT_EQ(json["version"], "2.1.0");
  ASSERT_EQ(json["runs"].size(), 1u);
  const auto& driver = json["runs"][0]["tool"]["driver"];
  EXPECT_EQ(driver["name"], "orrerix-cli");
  EXPECT_EQ(driver["rules"].size(), AllRules().size());
  EXPECT_EQ(driver["rules"][0]["id"], "asset-missing");
  EXPECT_EQ(driver["rules"][0]["shortDescription"]["text"],
            "A model, material or cockpit file does not exist.");
  EXPECT_EQ(driver["rules"][0]["defaultConfiguration"]["level"], "warning");
  const auto& bases = json["runs"][0]["originalUriBaseIds"];
  // With the drive of the test where there are drives.
  const std::string drive = std::filesystem::absolute("/").root_name().string();
  const std::string root = drive.empty() ? "file:///" : "file:///" + drive + "/";
  EXPECT_EQ(bases["GAME"]["uri"], root + "games/my%20mod/");
  EXPECT_EQ(bases["BASE"]["uri"], root + "games/base/");
}

TEST(SarifReport, HoldsAllFindingsAlsoThoseThatDoNotCount) {
  const auto json = nlohmann::json::parse(SarifReport(SomeAnswer(), kFolders));
  const auto& results = json["runs"][0]["results"];

  ASSERT_EQ(results.size(), 4u);
  EXPECT_EQ(results[0], nlohmann::json::parse(R"({
    "ruleId": "market-good", "level": "error", "message": {"text": "good does not exist: gold"},
    "locations": [{
      "physicalLocation": {
        "artifactLocation": {"uri": "DATA/EQUIPMENT/a%20b.ini", "uriBaseId": "GAME"},
        "region": {"startLine": 7}},
      "logicalLocations": [{"fullyQualifiedName": "BaseGood/li01/MarketGood"}]}],
    "partialFingerprints": {"orrerix/v1": "0123456789abcdef"}})"));
  EXPECT_EQ(results[1]["suppressions"], nlohmann::json::parse(R"([{"kind": "inSource"}])"));
  EXPECT_EQ(results[2]["suppressions"], nlohmann::json::parse(R"([{"kind": "external"}])"));
  EXPECT_EQ(results[3]["locations"][0]["physicalLocation"]["artifactLocation"]["uriBaseId"],
            "BASE");
  EXPECT_EQ(results[3]["relatedLocations"], nlohmann::json::parse(R"([{"physicalLocation": {
    "artifactLocation": {"uri": "DATA/x.ini", "uriBaseId": "GAME"},
    "region": {"startLine": 3}}}])"));
}

}  // namespace
}  // namespace orrerix::check
