// SPDX-License-Identifier: MIT
#include "platform/game_path.h"

#include <algorithm>
#include <vector>

#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

char LowerAscii(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return LowerAscii(x) == LowerAscii(y);
         });
}

std::vector<std::string> Components(std::string_view path) {
  std::vector<std::string> components;
  while (!path.empty()) {
    const std::size_t end = path.find_first_of("\\/");
    std::string component(path.substr(0, end));
    path.remove_prefix(end == std::string_view::npos ? path.size() : end + 1);
    if (component != "..") component.erase(component.find_last_not_of(" \t.") + 1);
    if (!component.empty()) components.push_back(std::move(component));
  }
  return components;
}

// The names in a folder in byte order.
std::vector<std::string> NamesIn(const fs::path& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    names.push_back(TextOf(entry->path().filename()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

// Walks down the components from `at` on; `accept` says whether the path found will do.
template <typename Accept>
std::optional<fs::path> Find(FolderListings& listings, const fs::path& folder,
                             const std::vector<std::string>& components, std::size_t at,
                             Accept accept) {
  if (at == components.size()) return accept(folder) ? std::optional(folder) : std::nullopt;
  const std::string& name = components[at];
  if (name == "..") return Find(listings, folder.parent_path(), components, at + 1, accept);
  const fs::path exact = SystemPath(folder / PathOf(name));
  std::error_code error;
  if (fs::exists(exact, error)) {
    if (auto found = Find(listings, exact, components, at + 1, accept)) return found;
  }
  if (kFileNamesIgnoreCase) return std::nullopt;
  for (const fs::path& other : listings.OtherSpellings(folder, name)) {
    if (auto found = Find(listings, other, components, at + 1, accept)) return found;
  }
  return std::nullopt;
}

bool IsFile(const fs::path& path) {
  std::error_code error;
  return fs::is_regular_file(path, error);
}

bool IsFolder(const fs::path& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

}  // namespace

std::vector<fs::path> FolderListings::OtherSpellings(const fs::path& folder,
                                                     std::string_view name) {
  auto known = names_.find(folder);
  if (known == names_.end()) known = names_.emplace(folder, NamesIn(folder)).first;
  std::vector<fs::path> others;
  for (const std::string& other : known->second) {
    if (other != name && EqualIgnoringCase(other, name)) others.push_back(folder / PathOf(other));
  }
  return others;
}

std::optional<fs::path> FindFolder(const fs::path& below, std::string_view path) {
  FolderListings listings;
  return Find(listings, below, Components(path), 0, IsFolder);
}

std::optional<fs::path> GameFolder::FindFile(std::string_view path) const {
  if (!path.starts_with(text_) || path.find('\0') != std::string_view::npos) return std::nullopt;
  return Find(listings_, PathOf(text_), Components(path.substr(text_.size())), 0, IsFile);
}

}  // namespace orrerix
