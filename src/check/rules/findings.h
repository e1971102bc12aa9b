// SPDX-License-Identifier: MIT
// Where the rules put what they find.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "check/files/game_files.h"
#include "check/model/definitions.h"
#include "check/model/text_libraries.h"
#include "check/rules/rule.h"

namespace orrerix::check {

// What the rules look at.
struct CheckedGame {
  const GameFiles& Files;
  const Definitions& Known;
  const TextLibraries& Texts;
};

// The place of a finding: a line of a file, and what stands there.
struct Spot {
  const DiskFile* Disk = nullptr;
  int Line = 1;
  const IniSection* Section = nullptr;  // null: in none
  const IniEntry* Entry = nullptr;      // null: no key
};

Spot AtEntry(const IniSection& section, const IniEntry& entry);
Spot AtHeader(const IniSection& section);
// The line of the lead key; the header without one.
Spot AtLead(const IniSection& section);
Spot AtFirstLine(const DiskFile& file);
// The entry if there is one, else the header.
Spot AtEntryOrHeader(const IniSection& section, const IniEntry* entry);

FilePlace PlaceOf(const Spot& spot);

// Collects the findings of the rules that are wanted.
class Findings {
 public:
  explicit Findings(std::set<Rule> wanted) : wanted_(std::move(wanted)) {}

  bool Wants(Rule rule) const { return wanted_.contains(rule); }

  void Add(Rule rule, const Spot& spot, std::string message, std::vector<FilePlace> related = {});

  std::vector<Finding> Take() { return std::move(findings_); }

 private:
  std::set<Rule> wanted_;
  std::vector<Finding> findings_;
};

}  // namespace orrerix::check
