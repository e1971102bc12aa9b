// SPDX-License-Identifier: MIT
#include "demo/files/game_folder.h"

#include <fstream>
#include <utility>

#include <fmt/core.h>

namespace orrerix::demo {
namespace {

constexpr std::string_view kMarker = "orrerix-demo.txt";
constexpr std::string_view kMarkerText =
    "This folder holds a made-up game, written by orrerix-demo.\r\n"
    "Everything in it is deleted when a game is written here again.\r\n";

void CheckIsOurs(const std::filesystem::path& folder) {
  if (!std::filesystem::exists(folder)) return;
  if (!std::filesystem::is_directory(folder)) {
    throw FolderRefused(fmt::format("\"{}\" is not a folder.", folder.string()));
  }
  if (std::filesystem::is_empty(folder)) return;
  if (std::filesystem::is_regular_file(folder / kMarker)) return;
  throw FolderRefused(
      fmt::format("The folder \"{}\" is not empty and was not written by this program (there is no "
                  "{} in it). Name a new or an empty folder.",
                  folder.string(), kMarker));
}

}  // namespace

GameFolder::GameFolder(std::filesystem::path folder) : folder_(std::move(folder)) {
  CheckIsOurs(folder_);
  std::filesystem::create_directories(folder_);
  for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
    // The marker stays, so that a run that breaks off leaves a folder that can be written again.
    if (entry.path().filename() != kMarker) std::filesystem::remove_all(entry.path());
  }
  Write(kMarker, kMarkerText);
}

void GameFolder::Write(std::string_view path, std::string_view bytes) const {
  const std::filesystem::path target = folder_ / std::filesystem::path(path);
  std::filesystem::create_directories(target.parent_path());
  std::ofstream file(target, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw FolderRefused(fmt::format("Cannot write \"{}\".", target.string()));
}

}  // namespace orrerix::demo
