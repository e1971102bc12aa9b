// SPDX-License-Identifier: MIT
#pragma once

#include <set>
#include <string>

#include "demo/content/nations.h"
#include "demo/plan/random.h"

namespace orrerix::demo {

// Composes place names in the way of a nation; each name is given once.
class Names {
 public:
  // A hand-picked system name while there is one left, then a composed one.
  std::string System(const Nation& nation, int number, Random& random);
  std::string Place(const Nation& nation, Random& random);

 private:
  std::set<std::string> used_;
};

}  // namespace orrerix::demo
