// SPDX-License-Identifier: MIT
#include <fmt/format.h>

#include "check/rules/rule.h"

namespace orrerix::check {
namespace {

constexpr std::string_view kIntroduction =
    "# Rules of the check\n"
    "\n"
    "`orrerix-cli check --game DIR` looks for these mistakes in a game's data files. "
    "`orrerix-cli check --explain RULE`\n"
    "prints one of them. This page is written by `orrerix-cli check --explain all`.\n"
    "\n"
    "| Rule | Severity | Finding |\n"
    "|---|---|---|\n";

}  // namespace

std::string ExplainRule(Rule rule) {
  const RuleInfo& info = InfoOf(rule);
  return fmt::format("{} ({}): {}\n{}\n", info.Id, SeverityName(info.Severity), info.Title,
                     info.Explanation);
}

std::string RulesPage() {
  std::string page(kIntroduction);
  for (const RuleInfo& rule : AllRules()) {
    page += fmt::format("| `{}` | {} | **{}** {} |\n", rule.Id, SeverityName(rule.Severity),
                        rule.Title, rule.Explanation);
  }
  return page;
}

}  // namespace orrerix::check
