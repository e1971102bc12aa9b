// SPDX-License-Identifier: MIT
#include "shell/file_snapshot.h"

#include <algorithm>
#include <functional>

#include "platform/file_time.h"
#include "platform/folder_watch.h"
#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

bool IsNamedLike(const fs::path& path, const fs::path& other) {
  if (!TextOf(path.filename()).starts_with(TextOf(other.filename()))) return false;
  std::error_code error;
  return fs::equivalent(path.parent_path(), other.parent_path(), error);
}

bool IsExcepted(const fs::path& path, const std::vector<fs::path>& except) {
  return std::any_of(except.begin(), except.end(),
                     [&path](const fs::path& other) { return IsNamedLike(path, other); });
}

}  // namespace

FileSnapshot::FileSnapshot(const std::vector<fs::path>& folders,
                           const std::vector<fs::path>& except) {
  ForEachFolder(folders, [&](const fs::path& folder) {
    if (IsExcepted(folder, except)) return;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
      std::error_code gone;
      if (!entry->is_regular_file(gone) || IsExcepted(entry->path(), except)) continue;
      const Stamp stamp{entry->file_size(gone), LastChanged(entry->path(), gone)};
      files_.emplace(entry->path(), stamp);
    }
  });
}

std::uint64_t FileSnapshot::Digest() const {
  constexpr std::uint64_t factor = 1099511628211u;  // of FNV-1a
  std::uint64_t digest = 14695981039346656037u;
  const auto add = [&digest](std::uint64_t part) { digest = (digest ^ part) * factor; };
  for (const auto& [path, stamp] : files_) {
    add(std::hash<std::string>()(TextOf(path)));
    add(stamp.Size);
    add(static_cast<std::uint64_t>(stamp.Written.time_since_epoch().count()));
  }
  return digest;
}

std::vector<fs::path> FileSnapshot::ChangedSince(const FileSnapshot& earlier) const {
  std::vector<fs::path> changed;
  for (const auto& [path, stamp] : files_) {
    const auto before = earlier.files_.find(path);
    if (before == earlier.files_.end() || before->second != stamp) changed.push_back(path);
  }
  for (const auto& [path, stamp] : earlier.files_) {
    if (!files_.contains(path)) changed.push_back(path);
  }
  std::sort(changed.begin(), changed.end());
  return changed;
}

}  // namespace orrerix
