// SPDX-License-Identifier: MIT
// The registry of a Wine prefix.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "platform/registry.h"

namespace orrerix {

// Reads "system.reg" (machine hive) and "user.reg" (user hive) of a prefix. Without a prefix every
// value is missing.
class WineRegistry : public Registry {
 public:
  explicit WineRegistry(std::filesystem::path prefix);

  // The prefix of this user: WINEPREFIX, else ~/.wine.
  static std::filesystem::path DefaultPrefix();

  std::optional<RegistryValue> Query(RegistryHive hive, std::string_view key,
                                     std::string_view value) const override;
  std::optional<std::string> RealPath(std::string_view path) const override;

 private:
  using Values = std::map<std::string, RegistryValue>;  // "key\value" in lower case
  static Values ReadHive(const std::filesystem::path& file);

  std::filesystem::path prefix_;
  Values machine_;
  Values user_;
};

}  // namespace orrerix
