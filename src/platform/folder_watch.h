// SPDX-License-Identifier: MIT
// Notices that something happens in folders.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace orrerix {

// Watches folders of some names, whatever their case, right below one folder, with all folders in
// them, also those that are made later. Folders that are missing, the one above among them, are
// waited for.
class FolderWatch {
 public:
  virtual ~FolderWatch() = default;

  // Whether files or folders may have come, gone or changed since the last call. Does not block.
  virtual bool HasStirred() = 0;

  // Waits until HasStirred would be true, a signal comes (which ends no wait on Windows), or so
  // much time has passed. Programs with an event loop ask HasStirred from a timer instead.
  virtual void Wait(std::chrono::milliseconds longest) = 0;
};

// The system's own watch. `names` are in lower case. Where the system refuses to watch so many
// folders, something may have happened once a second.
std::unique_ptr<FolderWatch> WatchFolders(const std::filesystem::path& above,
                                          std::vector<std::string> names);

// The folders of these names, in lower case, whatever their own case, right below one folder, in
// byte order.
std::vector<std::filesystem::path> FoldersNamed(const std::filesystem::path& above,
                                                const std::vector<std::string>& names);

// Calls `use` on each folder and all folders in it, also through links; one that a link leads to
// again is not entered again.
void ForEachFolder(const std::vector<std::filesystem::path>& folders,
                   const std::function<void(const std::filesystem::path&)>& use);

}  // namespace orrerix
