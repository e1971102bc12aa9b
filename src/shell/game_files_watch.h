// SPDX-License-Identifier: MIT
// Says which files of a game folder have changed, once nothing happens there any more.
#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "platform/folder_watch.h"
#include "shell/file_snapshot.h"

namespace orrerix {

// Has no loop of its own: a window asks it from a timer, a program without one waits in between.
class GameFilesWatch {
 public:
  using Time = std::chrono::steady_clock::time_point;

  // Where an early answer matters more than a single one, and elsewhere.
  static constexpr std::chrono::milliseconds kShortQuiet{150};
  static constexpr std::chrono::milliseconds kQuiet{300};

  // Watches the folders "exe" and "data" of a game. Files named like one of `except`, with whatever
  // follows, do not count. Changes are one round if none of them comes later than `quiet` after the
  // one before.
  explicit GameFilesWatch(const std::filesystem::path& game,
                          std::vector<std::filesystem::path> except = {},
                          std::chrono::milliseconds quiet = kQuiet);

  // The same with a watch of the caller's own.
  GameFilesWatch(std::unique_ptr<FolderWatch> watch, std::filesystem::path game,
                 std::vector<std::filesystem::path> except = {},
                 std::chrono::milliseconds quiet = kQuiet);

  // The files that came, went or were written, once a round is over; nothing while none is, and
  // never an empty list. While a folder that was there is missing no round ends. Does not block.
  std::optional<std::vector<std::filesystem::path>> TakeRound(Time now);

  // Waits until TakeRound is worth asking again, for so long at most.
  void Wait(std::chrono::milliseconds longest);

 private:
  std::vector<std::filesystem::path> Folders() const;
  bool HasAll(const std::vector<std::filesystem::path>& folders) const;

  std::unique_ptr<FolderWatch> watch_;
  std::filesystem::path game_;
  std::vector<std::filesystem::path> except_;
  std::chrono::milliseconds quiet_;
  std::vector<std::filesystem::path> folders_;  // that there were when a round last ended
  FileSnapshot known_;
  std::optional<Time> stirred_;  // when something last happened that no round has told yet
};

}  // namespace orrerix
