// SPDX-License-Identifier: MIT
// Which sections a row of a rule's table is about.
#pragma once

#include <algorithm>
#include <string_view>
#include <vector>

#include "check/files/roles.h"
#include "check/model/kinds.h"

namespace orrerix::check {

struct SectionSelector {
  RoleSet Roles;
  std::vector<std::string_view> Names;  // in lower case; empty: all

  bool Matches(RoleSet roles, std::string_view foldedSection) const {
    return roles.Meets(Roles) &&
           (Names.empty() || std::find(Names.begin(), Names.end(), foldedSection) != Names.end());
  }
};

// Sections of a kind; those of equipment; any section of archetypes.
inline SectionSelector Of(Kind kind) {
  return {InfoOf(kind).Roles, InfoOf(kind).Sections};
}
inline SectionSelector OfEquipment(std::vector<std::string_view> names) {
  return {{Role::Equipment}, std::move(names)};
}
inline SectionSelector OfArchetypes() {
  return {kArchetypes, {}};
}

// Whether a key (in lower case) is the one of a row; a row's key may start with "*" for any text.
inline bool MatchesKey(std::string_view pattern, std::string_view key) {
  if (!pattern.starts_with('*')) return pattern == key;
  return key.ends_with(pattern.substr(1));
}

}  // namespace orrerix::check
