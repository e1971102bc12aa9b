// SPDX-License-Identifier: MIT
#include "shell/game_files_watch.h"

#include <algorithm>
#include <set>
#include <utility>

#include "db/values/text.h"
#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

const std::vector<std::string>& WatchedNames() {
  static const std::vector<std::string> names = {"exe", "data"};
  return names;
}

std::set<std::string> FoldedNames(const std::vector<fs::path>& folders) {
  std::set<std::string> names;
  for (const fs::path& folder : folders) names.insert(FoldAscii(TextOf(folder.filename())));
  return names;
}

}  // namespace

GameFilesWatch::GameFilesWatch(const fs::path& game, std::vector<fs::path> except,
                               std::chrono::milliseconds quiet)
    : GameFilesWatch(WatchFolders(game, WatchedNames()), game, std::move(except), quiet) {}

GameFilesWatch::GameFilesWatch(std::unique_ptr<FolderWatch> watch, fs::path game,
                               std::vector<fs::path> except, std::chrono::milliseconds quiet)
    : watch_(std::move(watch)),
      game_(std::move(game)),
      except_(std::move(except)),
      quiet_(quiet),
      folders_(Folders()),
      known_(folders_, except_) {}

std::optional<std::vector<fs::path>> GameFilesWatch::TakeRound(Time now) {
  if (watch_->HasStirred()) stirred_ = now;
  if (!stirred_ || now - *stirred_ < quiet_) return std::nullopt;
  const std::vector<fs::path> folders = Folders();
  stirred_.reset();
  if (!HasAll(folders)) return std::nullopt;
  FileSnapshot current(folders, except_);
  std::vector<fs::path> changed = current.ChangedSince(known_);
  known_ = std::move(current);
  folders_ = folders;
  if (changed.empty()) return std::nullopt;
  return changed;
}

void GameFilesWatch::Wait(std::chrono::milliseconds longest) {
  watch_->Wait(longest);
}

std::vector<fs::path> GameFilesWatch::Folders() const {
  return FoldersNamed(game_, WatchedNames());
}

// Whether no name is missing that was there before; another spelling of it will do.
bool GameFilesWatch::HasAll(const std::vector<fs::path>& folders) const {
  const std::set<std::string> before = FoldedNames(folders_);
  const std::set<std::string> now = FoldedNames(folders);
  return std::includes(now.begin(), now.end(), before.begin(), before.end());
}

}  // namespace orrerix
