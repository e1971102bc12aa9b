// SPDX-License-Identifier: MIT
#include "check/rules/definition_rules.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>

#include "check/model/numbers.h"

namespace orrerix::check {
namespace {

void CheckNicknames(const CheckedGame& game, Findings& findings) {
  for (const IniSection* section : game.Known.Nameless()) {
    findings.Add(Rule::NicknameMissing, AtLead(*section),
                 fmt::format("the section has no {}: [{}]",
                             LeadKeyOf(game.Files.Names().Text(section->Id)), section->Name));
  }
  for (const Duplicate& duplicate : game.Known.Duplicates()) {
    const FilePlace first = PlaceOf(AtLead(*duplicate.First));
    findings.Add(Rule::NicknameDuplicate, AtLead(*duplicate.Section),
                 fmt::format("the nickname is taken at {}:{}: {}", first.File, first.Line,
                             duplicate.Section->Nickname()),
                 {first});
  }
}

// Finds a name that is missing, empty or 0.
void CheckName(const CheckedGame& game, const IniSection& section, std::string_view key,
               Findings& findings) {
  const IniEntry* entry = section.First(game.Files.Names().Find(key));
  const std::string_view value = entry == nullptr ? std::string_view() : entry->At(1);
  if (!value.empty() && ParseNumber(value).value_or(1) != 0) return;
  findings.Add(Rule::NameMissing, AtEntryOrHeader(section, entry),
               fmt::format("{} of {} is {}", key, section.Nickname(),
                           entry == nullptr ? "missing" : (value.empty() ? "empty" : value)));
}

bool IsPlaceToGo(const CheckedGame& game, const IniSection& object) {
  constexpr std::array<std::string_view, 3> keys = {"goto", "base", "dock_with"};
  return std::any_of(keys.begin(), keys.end(), [&](std::string_view key) {
    return object.First(game.Files.Names().Find(key)) != nullptr;
  });
}

void CheckNames(const CheckedGame& game, Findings& findings) {
  for (const IniSection* group : game.Known.All(Kind::Faction)) {
    CheckName(game, *group, "ids_name", findings);
  }
  for (const IniSection* object : game.Known.All(Kind::Object)) {
    if (IsPlaceToGo(game, *object)) CheckName(game, *object, "ids_name", findings);
  }
  for (const Kind kind : {Kind::System, Kind::Base}) {
    for (const IniSection* place : game.Known.All(kind)) {
      CheckName(game, *place, "strid_name", findings);
    }
  }
}

}  // namespace

void CheckDefinitions(const CheckedGame& game, Findings& findings) {
  CheckNicknames(game, findings);
  CheckNames(game, findings);
}

}  // namespace orrerix::check
