// SPDX-License-Identifier: MIT
#include <algorithm>

#include <fmt/format.h>

#include "check/report/reports.h"
#include "check/rules/rule.h"

namespace orrerix::check {
namespace {

// A folder as the start of a path.
std::string FolderStart(const std::string& folder) {
  return folder.ends_with('/') ? folder : folder + '/';
}

std::string FindingLine(const Finding& finding, const CheckedFolders& folders) {
  const bool isOfBase = finding.Layer == Layer::Base && folders.Base;
  return fmt::format("{}{}:{}: {}: {} [{}]\n", FolderStart(isOfBase ? *folders.Base : folders.Game),
                     finding.File, finding.Line, SeverityName(finding.Severity), finding.Message,
                     finding.Rule);
}

std::string RuleLines(const CheckAnswer& answer) {
  const auto counts = CountByRule(answer);
  std::string text;
  for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
    for (const RuleInfo& rule : AllRules()) {
      const auto count = counts.find(std::string(rule.Id));
      if (rule.Severity != severity || count == counts.end()) continue;
      text += fmt::format("{} {} {}\n", count->second, SeverityName(severity), rule.Id);
    }
  }
  return text;
}

}  // namespace

std::map<std::string, std::size_t> CountByRule(const CheckAnswer& answer) {
  std::map<std::string, std::size_t> counts;
  for (const Finding& finding : answer.Findings) {
    if (finding.State == FindingState::Counted) ++counts[finding.Rule];
  }
  return counts;
}

std::size_t CountOf(const CheckAnswer& answer, FindingState state) {
  return static_cast<std::size_t>(
      std::count_if(answer.Findings.begin(), answer.Findings.end(),
                    [state](const Finding& finding) { return finding.State == state; }));
}

std::string TextReport(const CheckAnswer& answer, const CheckedFolders& folders, bool isQuiet) {
  std::string text;
  if (!isQuiet) {
    for (const Finding& finding : answer.Findings) {
      if (finding.State == FindingState::Counted) text += FindingLine(finding, folders);
    }
    text += '\n';
    text += RuleLines(answer);
  }
  text +=
      fmt::format("{} errors, {} warnings, {} notes; {} suppressed, {} in the baseline ({} gone)\n",
                  answer.Count(Severity::Error), answer.Count(Severity::Warning),
                  answer.Count(Severity::Note), CountOf(answer, FindingState::Suppressed),
                  CountOf(answer, FindingState::InBaseline), answer.Gone.size());
  return text;
}

}  // namespace orrerix::check
