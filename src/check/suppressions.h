// SPDX-License-Identifier: MIT
// Comments that hide findings.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "check/files/game_files.h"
#include "check/finding.h"

namespace orrerix::check {

// "; check: ignore [RULE, ...]" hides the findings of its line, at a header those of its section;
// "; check: ignore-file [RULE, ...]" those of its file. Without a rule it hides all.
class FileSuppressions {
 public:
  explicit FileSuppressions(const IniFile& file);

  bool Hides(const Finding& finding) const;

 private:
  // The rules that a comment hides.
  struct RuleList {
    bool IsAll = false;
    std::set<std::string> Rules;
    bool Holds(const std::string& rule) const { return IsAll || Rules.contains(rule); }
  };

  static RuleList ParseRules(std::string_view text);
  void Take(const CheckComment& comment);

  const IniFile& file_;
  std::vector<RuleList> ofFile_;
  std::multimap<int, RuleList> ofLine_;
};

// Marks the findings that comments in their files hide. Reads the files that were not read before.
std::vector<Finding> WithSuppressions(std::vector<Finding> findings, const GameFiles& files);

}  // namespace orrerix::check
