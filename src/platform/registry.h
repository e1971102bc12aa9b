// SPDX-License-Identifier: MIT
// Read access to the registry that the game's installer wrote to.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace orrerix {

enum class RegistryHive { LocalMachine, CurrentUser };

// A text as it is stored, its final NUL included if it has one, or a 32-bit number.
using RegistryValue = std::variant<std::string, std::uint32_t>;

class Registry {
 public:
  virtual ~Registry() = default;

  // A value of a key (components separated by "\"); nothing if there is no such key or value, or
  // if it is of another type than text or 32-bit number.
  virtual std::optional<RegistryValue> Query(RegistryHive hive, std::string_view key,
                                             std::string_view value) const = 0;

  // A path from the registry as a path of this machine: on Windows its short form, elsewhere the
  // real one. Nothing if it leads nowhere.
  virtual std::optional<std::string> RealPath(std::string_view path) const = 0;
};

}  // namespace orrerix
