// SPDX-License-Identifier: MIT
// Which game a universe file came from, kept beside it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace orrerix {

struct GameRecord {
  std::string Game;         // the folder
  std::uint64_t Stamp = 0;  // of its files when they were imported
};

// A number that changes whenever a file below the folders "exe" and "data" of a game comes, goes or
// is written.
std::uint64_t StampOfGame(const std::filesystem::path& game);

// The record kept beside a universe file; nothing if there is none, or one that cannot be read.
std::optional<GameRecord> ReadGameRecord(const std::filesystem::path& universeFile);

// Keeps it there; false if that cannot be written.
bool WriteGameRecord(const std::filesystem::path& universeFile, const GameRecord& record);

// Whether two folder names are the same folder on disk.
bool IsSameFolder(const std::string& one, const std::string& other);

// The save folder for the universe of a game: `saveFolder` itself unless the universe file there
// came from another game; then one of the game's own below it.
std::filesystem::path SaveFolderOfGame(const std::filesystem::path& saveFolder,
                                       const std::string& game);

}  // namespace orrerix
