// SPDX-License-Identifier: MIT
#include "check/check.h"

#include <algorithm>

#include <fmt/format.h>

#include "check/files/game_files.h"
#include "check/fingerprints.h"
#include "check/model/definitions.h"
#include "check/model/text_libraries.h"
#include "check/rules/definition_rules.h"
#include "check/rules/faction_rules.h"
#include "check/rules/file_rules.h"
#include "check/rules/good_rules.h"
#include "check/rules/key_rules.h"
#include "check/rules/lane_rules.h"
#include "check/rules/line_rules.h"
#include "check/rules/loadout_rules.h"
#include "check/rules/text_rules.h"
#include "check/rules/universe_rules.h"
#include "check/suppressions.h"

namespace orrerix::check {
namespace fs = std::filesystem;
namespace {

struct CheckCancelled {};

// Counts steps and asks after each whether to go on.
class Steps {
 public:
  explicit Steps(const CheckProgress& progress) : progress_(progress) {}

  void Next() {
    if (progress_ && !progress_(++steps_)) throw CheckCancelled{};
  }

 private:
  const CheckProgress& progress_;
  std::size_t steps_ = 0;
};

std::set<Rule> WantedRules(const CheckOptions& options) {
  std::set<Rule> wanted;
  for (const RuleInfo& rule : AllRules()) {
    const std::string id(rule.Id);
    if ((options.Only.empty() || options.Only.contains(id)) && !options.Skip.contains(id)) {
      wanted.insert(rule.Rule);
    }
  }
  return wanted;
}

// One run over a game and the game that it builds on, without baseline.
CheckAnswer CheckOnce(const fs::path& game, const std::optional<fs::path>& base,
                      const std::set<Rule>& wanted, Steps& steps) {
  const auto next = [&steps] { steps.Next(); };
  GameFiles files(game, base, next);
  const Definitions known(files);
  const TextLibraries texts(files);
  const CheckedGame checked{files, known, texts};
  Findings findings(wanted);
  for (const auto check : {CheckFiles, CheckTexts, CheckDefinitions, CheckKeySpelling, CheckGoods,
                           CheckLoadouts, CheckFactions, CheckLanesAndJumps, CheckUniverse}) {
    next();
    check(checked, findings);
  }
  CheckLines(checked, findings, next);

  CheckAnswer answer;
  answer.Findings = WithSuppressions(InOrderWithFingerprints(findings.Take()), files);
  for (const ExpectedFile& expected : files.Expected()) {
    if (expected.Disk == nullptr) answer.Absent.push_back(expected.Key);
  }
  std::sort(answer.Absent.begin(), answer.Absent.end());
  return answer;
}

bool IsOfBase(const Finding& finding) {
  return finding.Layer == Layer::Base;
}

// Leaves out what a check of the base alone finds in its files, too.
void DropFindingsOfBaseAlone(CheckAnswer& answer, const CheckOptions& options,
                             const std::set<Rule>& wanted, Steps& steps) {
  const CheckAnswer alone = CheckOnce(*options.Base, options.Base, wanted, steps);
  std::set<std::string> fingerprints;
  for (const Finding& finding : alone.Findings) fingerprints.insert(finding.Fingerprint);
  std::erase_if(answer.Findings, [&fingerprints](const Finding& finding) {
    return IsOfBase(finding) && fingerprints.contains(finding.Fingerprint);
  });
}

void ApplyBaseline(CheckAnswer& answer, const std::set<std::string>& baseline) {
  answer.Gone = baseline;
  for (Finding& finding : answer.Findings) {
    if (!baseline.contains(finding.Fingerprint)) continue;
    answer.Gone.erase(finding.Fingerprint);
    if (finding.State == FindingState::Counted) finding.State = FindingState::InBaseline;
  }
}

// A mistyped base must not make every file a missing one.
void RequireGame(const fs::path& folder) {
  const FileTree tree(folder, std::nullopt);
  if (tree.Find("exe/freelancer.ini") != nullptr) return;
  throw CannotCheck(
      fmt::format("'{}' is no game folder: there is no EXE/freelancer.ini", folder.string()));
}

}  // namespace

std::size_t CheckAnswer::Count(Severity severity) const {
  return static_cast<std::size_t>(
      std::count_if(Findings.begin(), Findings.end(), [severity](const Finding& finding) {
        return finding.State == FindingState::Counted && finding.Severity == severity;
      }));
}

CheckAnswer RunCheck(const CheckOptions& options, const CheckProgress& progress) {
  Steps steps(progress);
  const std::set<Rule> wanted = WantedRules(options);
  const bool hasBase = options.Base && !IsSameFolder(*options.Base, options.Game);
  try {
    if (hasBase) RequireGame(*options.Base);
    CheckAnswer answer = CheckOnce(options.Game, options.Base, wanted, steps);
    if (hasBase && std::any_of(answer.Findings.begin(), answer.Findings.end(), IsOfBase)) {
      DropFindingsOfBaseAlone(answer, options, wanted, steps);
    }
    ApplyBaseline(answer, options.Baseline);
    return answer;
  } catch (const CheckCancelled&) {
    CheckAnswer cancelled;
    cancelled.Cancelled = true;
    return cancelled;
  }
}

}  // namespace orrerix::check
