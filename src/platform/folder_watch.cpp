// SPDX-License-Identifier: MIT
#include "platform/folder_watch.h"

#include <algorithm>
#include <set>

#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

std::string LowerAscii(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

void Walk(const fs::path& folder, std::set<fs::path>& linked,
          const std::function<void(const fs::path&)>& use) {
  use(folder);
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code ignored;
    if (!entry->is_directory(ignored)) continue;
    const bool isLink = entry->is_symlink(ignored);
    if (isLink && !linked.insert(fs::canonical(entry->path(), ignored)).second) continue;
    Walk(entry->path(), linked, use);
  }
}

}  // namespace

std::vector<fs::path> FoldersNamed(const fs::path& above, const std::vector<std::string>& names) {
  std::vector<fs::path> folders;
  std::error_code error;
  for (fs::directory_iterator entry(above, error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code ignored;
    const std::string name = LowerAscii(TextOf(entry->path().filename()));
    const bool isWanted = std::find(names.begin(), names.end(), name) != names.end();
    if (isWanted && entry->is_directory(ignored)) folders.push_back(entry->path());
  }
  std::sort(folders.begin(), folders.end());
  return folders;
}

void ForEachFolder(const std::vector<fs::path>& folders,
                   const std::function<void(const fs::path&)>& use) {
  std::set<fs::path> linked;
  for (const fs::path& folder : folders) Walk(folder, linked, use);
}

}  // namespace orrerix
