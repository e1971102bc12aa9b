// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstdint>
#include <map>
#include <string>

namespace orrerix {

// The three levels of a resource tree, all numeric: type, number within the type, language.
struct ResourceKey {
  std::uint32_t Type = 0;
  std::uint32_t Number = 0;
  std::uint32_t Language = 0;

  auto operator<=>(const ResourceKey&) const = default;
};

using ResourceMap = std::map<ResourceKey, std::string>;

// The bytes of a resource section that a loader places at `address`: the directories level by
// level, the leaves, then the data, each on a boundary of 8. Ids ascend on every level, because
// readers may search them by halves.
std::string ResourceSection(const ResourceMap& resources, std::uint32_t address);

}  // namespace orrerix
