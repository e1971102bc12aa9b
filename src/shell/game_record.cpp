// SPDX-License-Identifier: MIT
#include "shell/game_record.h"

#include <charconv>
#include <fstream>
#include <functional>

#include <fmt/format.h>

#include "platform/folder_watch.h"
#include "platform/long_names.h"
#include "platform/path_text.h"
#include "shell/file_snapshot.h"
#include "shell/startup.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

constexpr std::uint64_t kFirstHash = 14695981039346656037u;
constexpr std::uint64_t kHashFactor = 1099511628211u;

// FNV-1a.
std::uint64_t Hashed(std::uint64_t hash, std::string_view bytes) {
  for (const char byte : bytes) {
    hash = (hash ^ static_cast<unsigned char>(byte)) * kHashFactor;
  }
  return hash;
}

fs::path RecordOf(const fs::path& universeFile) {
  fs::path record = universeFile;
  return SystemPath(record += ".game");
}

std::string WholePath(const std::string& folder) {
  std::error_code error;
  const fs::path path = LongNames(fs::weakly_canonical(PathOf(folder), error));
  return error ? folder : TextOf(path);
}

}  // namespace

std::uint64_t StampOfGame(const fs::path& game) {
  return FileSnapshot(FoldersNamed(game, {"data", "exe"}), {}).Digest();
}

std::optional<GameRecord> ReadGameRecord(const fs::path& universeFile) {
  std::ifstream file(RecordOf(universeFile), std::ios::binary);
  std::string stamp;
  GameRecord record;
  if (!std::getline(file, stamp) || !std::getline(file, record.Game, '\0')) return std::nullopt;
  const char* end = stamp.data() + stamp.size();
  const auto read = std::from_chars(stamp.data(), end, record.Stamp);
  if (read.ec != std::errc() || read.ptr != end) return std::nullopt;
  return record;
}

bool WriteGameRecord(const fs::path& universeFile, const GameRecord& record) {
  std::ofstream file(RecordOf(universeFile), std::ios::binary | std::ios::trunc);
  file << record.Stamp << '\n' << record.Game;
  return static_cast<bool>(file.flush());
}

bool IsSameFolder(const std::string& one, const std::string& other) {
  std::error_code error;
  return one == other || fs::equivalent(PathOf(one), PathOf(other), error) ||
         WholePath(one) == WholePath(other);
}

fs::path SaveFolderOfGame(const fs::path& saveFolder, const std::string& game) {
  const auto record = ReadGameRecord(UniverseFileIn(saveFolder));
  if (!record || IsSameFolder(record->Game, game)) return saveFolder;
  const std::string whole = WholePath(game);
  return saveFolder / "Orrerix Games" /
         PathOf(fmt::format("{} {:016x}", TextOf(PathOf(whole).filename()),
                            Hashed(kFirstHash, whole)));
}

}  // namespace orrerix
