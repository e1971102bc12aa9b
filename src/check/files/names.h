// SPDX-License-Identifier: MIT
// Names that compare without regard to case, each known by a number.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "db/values/text.h"

namespace orrerix::check {

// Equal for names that differ in case only.
using NameId = std::uint32_t;
inline constexpr NameId kUnknownName = 0xFFFFFFFF;

// A name in lower case, as it is compared.
std::string FoldName(std::string_view name);

bool IsSameName(std::string_view a, std::string_view b);

class NameTable {
 public:
  // The number of a name, a new one if the name is new.
  NameId Intern(std::string_view name);

  // The number of a name that was interned before, else kUnknownName.
  NameId Find(std::string_view name) const;

  // The name in lower case.
  const std::string& Text(NameId id) const { return *texts_[id]; }

 private:
  std::unordered_map<std::string, NameId, TextHash, std::equal_to<>> ids_;
  std::vector<const std::string*> texts_;
};

}  // namespace orrerix::check
