// SPDX-License-Identifier: MIT
// The bases that a ship can dock at: those that objects of table DockObjects lead to, unless they
// are made so that nobody docks ("nodock" in their archetype).
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "atlas/source.h"

namespace orrerix {

struct AtlasBase {
  std::string Nickname;  // as its first dock spells it
  std::string Name;
  std::string System;  // nickname
  std::string SystemName;
  std::string Sector;  // "D4"; empty where the place is unknown
  std::string Owner;   // nickname of the faction
  std::string OwnerName;
  std::size_t Docks = 0;

  // Name and system: "Planet Manhattan (New York)".
  std::string Label() const;
};

// Bases in the order of their first docks among the objects.
class BaseBook {
 public:
  explicit BaseBook(const SourceTables& tables);

  const std::vector<AtlasBase>& Bases() const { return bases_; }

  // The place in Bases() of a base, or of the base of a dock; nothing if there is none.
  std::optional<std::size_t> Find(std::string_view base) const;
  std::optional<std::size_t> FindByDock(std::string_view object) const;

 private:
  using Places = std::unordered_map<std::string, std::size_t>;

  std::vector<AtlasBase> bases_;
  Places byNickname_;
  Places byDock_;
};

// The name of a system (of a faction); its nickname where it has none.
std::string SystemNameOf(const SourceTables& tables, std::string_view nickname);
std::string FactionNameOf(const SourceTables& tables, std::string_view nickname);

}  // namespace orrerix
