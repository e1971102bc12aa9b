// SPDX-License-Identifier: MIT
#include "check/files/file_tree.h"

#include <algorithm>
#include <fstream>
#include <set>

#include "check/files/paths.h"
#include "platform/path_text.h"

namespace orrerix::check {
namespace fs = std::filesystem;
namespace {

// Deeper folders are no part of a game.
constexpr int kMostFolders = 64;

// Lists the files below a folder. A linked folder is followed once.
class FolderWalk {
 public:
  std::vector<std::string> FilesBelow(const fs::path& folder) {
    Visit(folder, "", 0);
    std::sort(files_.begin(), files_.end());
    return std::move(files_);
  }

 private:
  void Visit(const fs::path& folder, const std::string& prefix, int depth) {
    std::error_code error;
    for (fs::directory_iterator each(folder, error), end; !error && each != end;
         each.increment(error)) {
      std::error_code unknown;
      const std::string path = prefix + TextOf(each->path().filename());
      if (each->is_directory(unknown)) {
        if (depth < kMostFolders && IsNewFolder(*each)) Visit(each->path(), path + '/', depth + 1);
      } else if (each->is_regular_file(unknown)) {
        files_.push_back(path);
      }
    }
  }

  bool IsNewFolder(const fs::directory_entry& entry) {
    std::error_code error;
    if (!entry.is_symlink(error)) return true;
    const fs::path target = fs::canonical(entry.path(), error);
    return !error && links_.insert(target).second;
  }

  std::vector<std::string> files_;
  std::set<fs::path> links_;
};

}  // namespace

bool IsSameFolder(const fs::path& a, const fs::path& b) {
  std::error_code error;
  return fs::equivalent(a, b, error) || a.lexically_normal() == b.lexically_normal();
}

FileTree::FileTree(fs::path game, std::optional<fs::path> base) : game_(std::move(game)) {
  for (std::string& path : FolderWalk().FilesBelow(game_)) {
    std::string key = PathKey(path);
    files_.push_back({Layer::Game, std::move(path), std::move(key)});
  }
  if (base && !IsSameFolder(*base, game_)) {
    base_ = std::move(*base);
    for (std::string& path : FolderWalk().FilesBelow(base_)) {
      std::string key = PathKey(path);
      files_.push_back({Layer::Base, std::move(path), std::move(key)});
    }
  }
  for (const DiskFile& file : files_) byKey_.emplace(file.Key, &file);
}

const DiskFile* FileTree::Find(std::string_view key) const {
  const auto found = byKey_.find(key);
  return found == byKey_.end() ? nullptr : found->second;
}

fs::path FileTree::FullPath(const DiskFile& file) const {
  return (file.Layer == Layer::Game ? game_ : base_) / PathOf(file.Path);
}

std::optional<std::string> FileTree::ReadBytes(const DiskFile& file) const {
  std::ifstream stream(SystemPath(FullPath(file)), std::ios::binary | std::ios::ate);
  if (!stream) return std::nullopt;
  const std::streamoff size = stream.tellg();
  if (size < 0) return std::nullopt;
  std::string bytes(static_cast<std::size_t>(size), '\0');
  stream.seekg(0);
  stream.read(bytes.data(), size);
  if (stream.gcount() != size) return std::nullopt;
  return bytes;
}

}  // namespace orrerix::check
