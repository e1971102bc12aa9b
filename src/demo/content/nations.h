// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace orrerix::demo {

// A nation, or the border worlds, which share a way of naming things but no government.
struct Nation {
  std::string Prefix;                // two letters that begin its nicknames
  std::string Name;                  // with its article: "the Vorrland Compact"
  std::vector<std::string> Systems;  // hand-picked names, used up first
  std::vector<std::string> Heads;    // first and second halves of composed names
  std::vector<std::string> Tails;
  std::string Joint;                   // between the halves
  std::vector<std::string> Sentences;  // about the nation's worlds, {name} being the place
};

// The four nations, then the border worlds as the last one.
const std::vector<Nation>& Nations();

inline constexpr int kNationCount = 4;
inline constexpr int kBorderWorlds = 4;

}  // namespace orrerix::demo
