// SPDX-License-Identifier: MIT
#include "check/rules/line_rules.h"

#include <algorithm>

#include <fmt/format.h>

#include "check/files/paths.h"
#include "check/rules/key_plans.h"
#include "check/rules/references.h"
#include "check/rules/shapes.h"
#include "check/rules/text_numbers.h"

namespace orrerix::check {
namespace {

class LineWalk {
 public:
  LineWalk(const CheckedGame& game, Findings& findings)
      : game_(game),
        findings_(findings),
        plans_(game.Files.Names()),
        references_(game),
        textNumbers_(game.Texts),
        hasModels_(game.Files.IsWhole() && HoldsModels(game.Files.Tree())) {}

  void CheckFile(const IniFile& file) {
    const RoleSet roles = game_.Files.RolesOf(file);
    for (const IniSection& section : file.Sections()) {
      for (const IniEntry& entry : section.Entries) {
        const KeyPlan& plan = plans_.Of(roles, section.Id, entry.Name);
        if (!plan.IsEmpty()) CheckEntry(plan, section, entry);
      }
    }
  }

  void CheckMissingLines() { references_.CheckMissingLines(findings_); }

 private:
  static bool HoldsModels(const FileTree& tree) {
    const auto& files = tree.Files();
    return std::any_of(files.begin(), files.end(),
                       [](const DiskFile& file) { return file.Key.ends_with(".cmp"); });
  }

  void CheckEntry(const KeyPlan& plan, const IniSection& section, const IniEntry& entry) {
    for (const Reference* reference : plan.References) {
      references_.CheckLine(*reference, section, entry, findings_);
    }
    if (plan.Shape != nullptr) CheckShape(*plan.Shape, section, entry, findings_);
    for (const Range* range : plan.Ranges) CheckRange(*range, section, entry, findings_);
    for (const TextNumberPlace& place : plan.TextNumbers) {
      textNumbers_.CheckLine(place, section, entry, findings_);
    }
    if (plan.IsAsset && hasModels_) CheckAsset(section, entry);
    if (plan.MayStandOnce) CheckRepeated(section, entry);
  }

  void CheckAsset(const IniSection& section, const IniEntry& entry) {
    if (entry.At(1).empty()) return;
    const std::string path = JoinPath(game_.Files.DataFolder(), entry.At(1));
    if (game_.Files.Tree().Find(PathKey(path)) != nullptr) return;
    findings_.Add(Rule::AssetMissing, AtEntry(section, entry),
                  fmt::format("file does not exist: {}", entry.At(1)));
  }

  void CheckRepeated(const IniSection& section, const IniEntry& entry) {
    const IniEntry* first = section.First(entry.Name);
    if (first == &entry) return;
    findings_.Add(Rule::KeyDuplicate, AtEntry(section, entry),
                  fmt::format("{} stands in this section before, at line {}; it has no effect: {}",
                              entry.Key, first->Line, entry.Value),
                  {PlaceOf(AtEntry(section, *first))});
  }

  const CheckedGame& game_;
  Findings& findings_;
  KeyPlans plans_;
  ReferenceRules references_;
  TextNumberRules textNumbers_;
  bool hasModels_;
};

}  // namespace

void CheckLines(const CheckedGame& game, Findings& findings, const std::function<void()>& goOn) {
  LineWalk walk(game, findings);
  for (const IniFile* file : game.Files.InisWith(kKnownRoles)) {
    goOn();
    walk.CheckFile(*file);
  }
  walk.CheckMissingLines();
}

}  // namespace orrerix::check
