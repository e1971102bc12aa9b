// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>

#include "check/report/reports.h"

namespace orrerix::check {
namespace {

using Json = nlohmann::ordered_json;

Json FindingJson(const Finding& finding) {
  Json related = Json::array();
  for (const FilePlace& place : finding.Related) {
    related.push_back({{"file", place.File}, {"line", place.Line}});
  }
  return {{"rule", finding.Rule},
          {"severity", SeverityName(finding.Severity)},
          {"layer", LayerName(finding.Layer)},
          {"file", finding.File},
          {"line", finding.Line},
          {"section", finding.Section},
          {"nickname", finding.Nickname},
          {"key", finding.Key},
          {"message", finding.Message},
          {"fingerprint", finding.Fingerprint},
          {"related", related}};
}

Json SummaryJson(const CheckAnswer& answer) {
  Json rules = Json::object();
  for (const auto& [rule, count] : CountByRule(answer)) rules[rule] = count;
  return {{"error", answer.Count(Severity::Error)},
          {"warning", answer.Count(Severity::Warning)},
          {"note", answer.Count(Severity::Note)},
          {"suppressed", CountOf(answer, FindingState::Suppressed)},
          {"baseline", CountOf(answer, FindingState::InBaseline)},
          {"gone", answer.Gone.size()},
          {"rules", rules}};
}

}  // namespace

std::string JsonReport(const CheckAnswer& answer, const CheckedFolders& folders) {
  Json report;
  report["version"] = 1;
  report["game"] = folders.Game;
  report["base"] = folders.Base ? Json(*folders.Base) : Json(nullptr);
  report["findings"] = Json::array();
  for (const Finding& finding : answer.Findings) {
    if (finding.State == FindingState::Counted) report["findings"].push_back(FindingJson(finding));
  }
  report["absent"] = answer.Absent;
  report["summary"] = SummaryJson(answer);
  return report.dump(2, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace orrerix::check
