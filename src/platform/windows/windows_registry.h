// SPDX-License-Identifier: MIT
// The registry of Windows.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/registry.h"

namespace orrerix {

// Looks into the 64-bit view first, then into the one that 32-bit installers write to. A machine
// key that this user may not read is looked for in the user hive instead.
class WindowsRegistry : public Registry {
 public:
  std::optional<RegistryValue> Query(RegistryHive hive, std::string_view key,
                                     std::string_view value) const override;
  std::optional<std::string> RealPath(std::string_view path) const override;
};

}  // namespace orrerix
