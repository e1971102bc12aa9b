// SPDX-License-Identifier: MIT
// The rules that what a line names must exist.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "check/rules/findings.h"
#include "check/rules/reference_table.h"

namespace orrerix::check {

class ReferenceRules {
 public:
  explicit ReferenceRules(const CheckedGame& game);

  // Looks up what a line names.
  void CheckLine(const Reference& reference, const IniSection& section, const IniEntry& entry,
                 Findings& findings) const;

  // Finds the sections that lack a line that they need.
  void CheckMissingLines(Findings& findings) const;

 private:
  bool Exists(Target target, std::string_view value, const IniSection& section) const;
  bool IsComplete(Target target) const;

  const CheckedGame& game_;
  std::set<std::string> shieldTypes_;  // in lower case
  std::vector<bool> isComplete_;       // by target
};

}  // namespace orrerix::check
