// SPDX-License-Identifier: MIT
#include "check/rules/text_rules.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

namespace orrerix::check {
namespace {

// Keys that stand alone in the game's own files.
struct LoneKey {
  std::string_view Section;
  std::string_view Key;
};
constexpr std::array kLoneKeys = std::to_array<LoneKey>({
    {"CollisionGroup", "separable"},
    {"BaseFaction", "offers_missions"},
    {"Data", "bases"},
});

bool IsLoneKey(const IniSection& section, std::string_view text) {
  return std::any_of(kLoneKeys.begin(), kLoneKeys.end(), [&](const LoneKey& lone) {
    return IsSameName(section.Name, lone.Section) && IsSameName(text, lone.Key);
  });
}

// A place whose key is all of a line.
Spot AtBareLine(const IniFile& file, const IniEntry& line) {
  return {&file.Disk(), line.Line, file.SectionAt(line.Line), &line};
}

void CheckEarlyText(const IniFile& file, Findings& findings) {
  const auto& early = file.EarlyText();
  if (!early) return;
  findings.Add(Rule::TextBeforeSection, AtBareLine(file, *early),
               fmt::format("text stands above the first header: {}", early->Key));
}

void CheckBareLines(const IniFile& file, Findings& findings) {
  for (const BareLine& line : file.BareLines()) {
    const IniSection* section = file.SectionAt(line.Line);
    if (section != nullptr && IsLoneKey(*section, line.Text)) continue;
    const IniEntry asEntry{line.Text, {}, kUnknownName, line.Line};
    findings.Add(Rule::NoEquals, AtBareLine(file, asEntry),
                 fmt::format("the line has no \"=\": {}", line.Text));
  }
}

void CheckHeaders(const IniFile& file, Findings& findings) {
  for (const IniSection& section : file.Sections()) {
    if (section.IsCut) {
      findings.Add(Rule::ForgottenHeader, AtLead(section),
                   fmt::format("a header [{}] is missing before this line: {}", section.Name,
                               section.Lead->Value));
    } else if (section.Name.empty()) {
      findings.Add(Rule::BadHeader, AtHeader(section), "the header has no name: []");
    } else if (!section.IsClosed) {
      findings.Add(Rule::BadHeader, AtHeader(section),
                   fmt::format("the header has no \"]\": [{}", section.Name));
    }
  }
}

// The entry at a line; null if there is none.
const IniEntry* EntryAt(const IniSection* section, int line) {
  if (section == nullptr) return nullptr;
  const auto found = std::find_if(section->Entries.begin(), section->Entries.end(),
                                  [line](const IniEntry& entry) { return entry.Line == line; });
  return found == section->Entries.end() ? nullptr : &*found;
}

void CheckBytes(const IniFile& file, Findings& findings) {
  const auto line = file.BadBytesLine();
  if (!line) return;
  const IniSection* section = file.SectionAt(*line);
  const IniEntry* entry = EntryAt(section, *line);
  IniEntry asEntry;
  for (const BareLine& bare : file.BareLines()) {
    if (bare.Line != *line) continue;
    asEntry = {bare.Text, {}, kUnknownName, bare.Line};
    entry = &asEntry;
  }
  findings.Add(Rule::BadBytes, {&file.Disk(), *line, section, entry},
               "the line holds bytes that no text has");
}

}  // namespace

void CheckTexts(const CheckedGame& game, Findings& findings) {
  for (const IniFile* file : game.Files.AllInis()) {
    CheckEarlyText(*file, findings);
    CheckBareLines(*file, findings);
    CheckHeaders(*file, findings);
    CheckBytes(*file, findings);
  }
}

}  // namespace orrerix::check
