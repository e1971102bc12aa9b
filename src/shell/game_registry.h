// SPDX-License-Identifier: MIT
// What the program asks the registry: the game's folder and the user's shell folders.
#pragma once

#include <string>

#include "platform/registry.h"
#include "platform/shell_folders.h"
#include "shell/error_log.h"

namespace orrerix {

class GameRegistry {
 public:
  GameRegistry(ErrorLog& log, const Registry& registry) : log_(log), registry_(registry) {}

  // The game's folder as its installer noted it: "AppPath" of version 1.0, then of 2.0, then the
  // customary place. A folder that is not there is a failure, after which the result is blank.
  std::string GetFLPath() const;

  // The user's folders, from the registry or, where it is silent, from the system.
  std::string GetDesktopFolder() const;
  std::string GetProgramsFolder() const;
  std::string GetPersonalFolder() const;

  // One value as text, without the final NUL that a stored text may carry; empty if there is none.
  std::string QueryValue(const std::string& key, const std::string& value, bool userHive) const;

 private:
  std::string ShellFolderPath(const std::string& value, ShellFolder folder) const;

  ErrorLog& log_;
  const Registry& registry_;
};

}  // namespace orrerix
