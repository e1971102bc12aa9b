// SPDX-License-Identifier: MIT
// Who owns what in the demo game.
#pragma once

#include <string>
#include <vector>

namespace orrerix::demo {

enum class FactionRole { Navy, Police, Company, Pirate };

struct Faction {
  std::string Nickname;
  std::string Name;
  std::string ShortName;
  int Nation = 0;  // index into Nations
  FactionRole Role = FactionRole::Company;
  std::vector<std::string> About;  // paragraphs of the card
};

// All factions; each nation and the border worlds have at least one of every role.
const std::vector<Faction>& Factions();

// Places in Factions of a nation's factions with a role, in the order of the table.
std::vector<int> FactionsOf(int nation, FactionRole role);

}  // namespace orrerix::demo
