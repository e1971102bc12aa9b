// SPDX-License-Identifier: MIT
#include "demo/content/names.h"

#include <cstddef>

#include <fmt/core.h>

namespace orrerix::demo {

std::string Names::System(const Nation& nation, int number, Random& random) {
  if (number > static_cast<int>(nation.Systems.size())) return Place(nation, random);
  return *used_.insert(nation.Systems[static_cast<std::size_t>(number) - 1]).first;
}

std::string Names::Place(const Nation& nation, Random& random) {
  constexpr int patience = 40;
  std::string name;
  for (int attempt = 0; attempt < patience; ++attempt) {
    name = random.Pick(nation.Heads) + nation.Joint + random.Pick(nation.Tails);
    if (used_.insert(name).second) return name;
  }
  // The halves are used up: the name comes again with a number after it.
  int number = 2;
  while (!used_.insert(fmt::format("{} {}", name, number)).second) ++number;
  return fmt::format("{} {}", name, number);
}

}  // namespace orrerix::demo
