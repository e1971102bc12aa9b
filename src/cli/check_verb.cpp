// SPDX-License-Identifier: MIT
// check: mistakes in a game folder's data files.
#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <set>

#include <fmt/format.h>

#include "check/check.h"
#include "check/report/baseline.h"
#include "check/report/reports.h"
#include "check/rules/rule.h"
#include "cli/verbs.h"
#include "platform/path_text.h"

namespace orrerix {
namespace {

using check::Severity;

// The word that stands for all rules in --explain.
constexpr std::string_view kAllRules = "all";

struct CheckArguments {
  std::optional<std::string> Game;
  std::optional<std::string> Base;
  std::string Format = "text";
  std::string FailOn = "error";
  std::optional<std::string> Output;
  std::vector<std::string> Only;
  std::vector<std::string> Skip;
  std::optional<std::string> Baseline;
  std::optional<std::string> WriteBaseline;
  std::optional<std::string> Explain;
  bool Quiet = false;
};

check::Rule RequireRule(const std::string& id) {
  if (const auto rule = check::FindRule(id)) return *rule;
  throw WrongUsage(fmt::format("there is no rule '{}'", id));
}

std::set<std::string> RequireRules(const std::vector<std::string>& ids) {
  std::set<std::string> rules;
  for (const std::string& id : ids) {
    const auto begin = id.find_first_not_of(' ');
    const std::string trimmed =
        begin == std::string::npos ? "" : id.substr(begin, id.find_last_not_of(' ') - begin + 1);
    rules.emplace(check::InfoOf(RequireRule(trimmed)).Id);
  }
  return rules;
}

class CheckVerb {
 public:
  CheckVerb(const CommonOptions& options, const CheckArguments& arguments)
      : options_(options), arguments_(arguments) {}

  int Run() const {
    if (arguments_.Explain) return PrintExplanation();
    if (!arguments_.Game) throw WrongUsage("check needs --game");
    const check::CheckOptions wanted = ReadOptions();
    const check::CheckAnswer answer = check::RunCheck(wanted);
    if (arguments_.WriteBaseline) {
      WriteFile(*arguments_.WriteBaseline, check::BaselineText(answer));
    }
    Print(Report(answer));
    return !arguments_.WriteBaseline && HasFailed(answer) ? kStrictFound : kDone;
  }

 private:
  int PrintExplanation() const {
    Print(*arguments_.Explain == kAllRules ? check::RulesPage()
                                           : ExplainRule(RequireRule(*arguments_.Explain)));
    return kDone;
  }

  check::CheckOptions ReadOptions() const {
    check::CheckOptions wanted;
    wanted.Game = PathOf(*arguments_.Game);
    if (arguments_.Base) wanted.Base = PathOf(*arguments_.Base);
    wanted.Only = RequireRules(arguments_.Only);
    wanted.Skip = RequireRules(arguments_.Skip);
    if (!arguments_.Baseline) return wanted;
    for (const check::BaselineEntry& entry : ReadBaseline()) {
      // Findings of rules that did not run have not gone away.
      const bool isLookedFor = (wanted.Only.empty() || wanted.Only.contains(entry.Rule)) &&
                               !wanted.Skip.contains(entry.Rule);
      if (isLookedFor) wanted.Baseline.insert(entry.Fingerprint);
    }
    return wanted;
  }

  std::vector<check::BaselineEntry> ReadBaseline() const {
    std::ifstream stream(SystemPath(PathOf(*arguments_.Baseline)), std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    if (!stream) throw CouldNot(fmt::format("cannot read '{}'", *arguments_.Baseline));
    return check::ParseBaseline(text, *arguments_.Baseline);
  }

  std::string Report(const check::CheckAnswer& answer) const {
    const check::CheckedFolders folders{*arguments_.Game, arguments_.Base};
    if (options_.Json || arguments_.Format == "json") return JsonReport(answer, folders);
    if (arguments_.Format == "sarif") return SarifReport(answer, folders);
    return TextReport(answer, folders, arguments_.Quiet);
  }

  void Print(const std::string& text) const {
    if (arguments_.Output) return WriteFile(*arguments_.Output, text);
    fmt::print("{}", text);
  }

  static void WriteFile(const std::string& file, const std::string& text) {
    std::ofstream stream(SystemPath(PathOf(file)), std::ios::binary | std::ios::trunc);
    stream << text;
    if (!stream.flush()) throw CouldNot(fmt::format("cannot write '{}'", file));
  }

  bool HasFailed(const check::CheckAnswer& answer) const {
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
      if (arguments_.FailOn == "never") return false;
      if (answer.Count(severity) > 0) return true;
      if (arguments_.FailOn == SeverityName(severity)) return false;
    }
    return false;
  }

  const CommonOptions& options_;
  const CheckArguments& arguments_;
};

}  // namespace

void AddCheckVerb(CLI::App& app, const CommonOptions& options, Verb& run) {
  auto arguments = std::make_shared<CheckArguments>();
  CLI::App* verb = app.add_subcommand("check", "Find mistakes in a game folder's data files");
  AddText(*verb, "--game", arguments->Game, "The game's folder")->type_name("DIR");
  AddText(*verb, "--base", arguments->Base, "The unmodified game beneath a mod")->type_name("DIR");
  verb->add_option("--format", arguments->Format, "What the report is: text, json or sarif")
      ->check(CLI::IsMember({"text", "json", "sarif"}));
  AddText(*verb, "--output", arguments->Output, "File for the report")->type_name("FILE");
  verb->add_option("--fail-on", arguments->FailOn, "Exit code 3 from this severity on")
      ->check(CLI::IsMember({"error", "warning", "note", "never"}));
  verb->add_option("--only", arguments->Only, "Look for these rules alone")
      ->delimiter(',')
      ->type_name("RULE,...");
  verb->add_option("--skip", arguments->Skip, "Look for all rules but these")
      ->delimiter(',')
      ->type_name("RULE,...");
  AddText(*verb, "--baseline", arguments->Baseline, "File of findings that are known already")
      ->type_name("FILE");
  AddText(*verb, "--write-baseline", arguments->WriteBaseline,
          "File to write all findings to, as a baseline")
      ->type_name("FILE");
  AddText(*verb, "--explain", arguments->Explain, "Print what a rule looks for; 'all' for all")
      ->type_name("RULE");
  verb->add_flag("--quiet", arguments->Quiet, "Of the text the last line only");
  verb->footer("Needs --game unless a rule is to be explained, and no universe file.");
  verb->callback([&options, &run, arguments] {
    run = [&options, arguments] { return CheckVerb(options, *arguments).Run(); };
  });
}

}  // namespace orrerix
