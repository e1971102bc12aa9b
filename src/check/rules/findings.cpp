// SPDX-License-Identifier: MIT
#include "check/rules/findings.h"

namespace orrerix::check {

Spot AtEntry(const IniSection& section, const IniEntry& entry) {
  return {&section.File->Disk(), entry.Line, &section, &entry};
}

Spot AtHeader(const IniSection& section) {
  return {&section.File->Disk(), section.Line, &section, nullptr};
}

Spot AtLead(const IniSection& section) {
  return AtEntryOrHeader(section, section.Lead);
}

Spot AtFirstLine(const DiskFile& file) {
  return {&file, 1, nullptr, nullptr};
}

Spot AtEntryOrHeader(const IniSection& section, const IniEntry* entry) {
  return entry == nullptr ? AtHeader(section) : AtEntry(section, *entry);
}

FilePlace PlaceOf(const Spot& spot) {
  return {spot.Disk->Path, spot.Line, spot.Disk->Layer};
}

void Findings::Add(Rule rule, const Spot& spot, std::string message,
                   std::vector<FilePlace> related) {
  if (!Wants(rule)) return;
  Finding finding;
  finding.Rule = InfoOf(rule).Id;
  finding.Severity = InfoOf(rule).Severity;
  finding.Layer = spot.Disk->Layer;
  finding.File = spot.Disk->Path;
  finding.Line = spot.Line;
  if (spot.Section != nullptr) {
    finding.Section = spot.Section->Name;
    finding.Nickname = spot.Section->Nickname();
  }
  if (spot.Entry != nullptr) {
    finding.Key = spot.Entry->Key;
    finding.Value = spot.Entry->Value;
    if (spot.Section != nullptr) finding.Column = spot.Section->File->ColumnOf(spot.Entry->Key);
  }
  finding.Message = std::move(message);
  finding.Related = std::move(related);
  findings_.push_back(std::move(finding));
}

}  // namespace orrerix::check
