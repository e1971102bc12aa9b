// SPDX-License-Identifier: MIT
// The rules about numbers of texts: that there is such a text, and that its markup is sound.
#pragma once

#include <cstdint>
#include <unordered_map>

#include "check/rules/findings.h"
#include "check/rules/key_plans.h"

namespace orrerix::check {

class TextNumberRules {
 public:
  explicit TextNumberRules(const TextLibraries& texts) : texts_(texts) {}

  void CheckLine(const TextNumberPlace& place, const IniSection& section, const IniEntry& entry,
                 Findings& findings);

 private:
  bool IsSoundCard(std::uint32_t number, std::string_view raw);

  const TextLibraries& texts_;
  std::unordered_map<std::uint32_t, bool> isSound_;  // of the cards looked at
};

}  // namespace orrerix::check
