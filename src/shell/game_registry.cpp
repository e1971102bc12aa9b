// SPDX-License-Identifier: MIT
#include "shell/game_registry.h"

#include <fmt/format.h>

#include "shell/routine.h"

namespace orrerix {
namespace {

constexpr const char* kGameKey = "SOFTWARE\\Microsoft\\Microsoft Games\\Freelancer\\";
constexpr const char* kShellFoldersKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
constexpr const char* kCustomaryPlace = "C:\\Programme\\Microsoft Games\\Freelancer";
constexpr std::size_t kPathBuffer = 255;

}  // namespace

std::string GameRegistry::QueryValue(const std::string& key, const std::string& value,
                                     bool userHive) const {
  std::string text;
  Routine routine(log_, "Module1.QueryValue",
                  fmt::format("While reading from Registry [{}\\\\{}]", key, value));
  routine.Run([&] {
    const auto found = registry_.Query(
        userHive ? RegistryHive::CurrentUser : RegistryHive::LocalMachine, key, value);
    if (!found) return;
    if (const auto* number = std::get_if<std::uint32_t>(&*found)) {
      text = std::to_string(*number);
    } else {
      text = std::get<std::string>(*found);
    }
    if (!text.empty() && text.back() == '\0') text.pop_back();
  });
  return text;
}

std::string GameRegistry::GetFLPath() const {
  std::string path;
  Routine routine(log_, "Module1.GetFLPath", "While getting FL-Path from Registry");
  routine.Run([&] {
    std::string stored;
    for (const std::string_view version : {"1.0", "2.0"}) {
      if (stored.empty())
        stored = QueryValue(fmt::format("{}{}", kGameKey, version), "AppPath", false);
    }
    if (stored.empty()) stored = kCustomaryPlace;
    path.assign(kPathBuffer, ' ');
    routine.Try([&] {
      const auto real = registry_.RealPath(stored);
      if (!real) throw RuntimeFailure(failure_number::kInvalidProcedureCall);
      path = *real;
    });
  });
  return path;
}

std::string GameRegistry::ShellFolderPath(const std::string& value, ShellFolder folder) const {
  const std::string stored = QueryValue(kShellFoldersKey, value, true);
  const auto real = registry_.RealPath(stored);
  return real.value_or(DefaultShellFolder(folder));
}

std::string GameRegistry::GetDesktopFolder() const {
  return ShellFolderPath("Desktop", ShellFolder::Desktop);
}

std::string GameRegistry::GetProgramsFolder() const {
  return ShellFolderPath("Programs", ShellFolder::Programs);
}

std::string GameRegistry::GetPersonalFolder() const {
  return ShellFolderPath("Personal", ShellFolder::Personal);
}

}  // namespace orrerix
