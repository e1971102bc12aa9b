// SPDX-License-Identifier: MIT
// The names that players know things by.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "db/rows/stored_table.h"

namespace orrerix {

class NameBook {
 public:
  // Adds the things of a universe: systems, bases, factions, ships and their packages, goods,
  // objects and whatever else has a nickname and a name or the number of one. The first name of a
  // nickname counts.
  void Learn(const std::vector<StoredTable>& universe);

  // The name of a nickname, whatever its case; empty if none is known.
  std::string_view NameOf(std::string_view nickname) const;

 private:
  class Reader;

  std::unordered_map<std::string, std::string> names_;  // by nickname in lower case
};

}  // namespace orrerix
