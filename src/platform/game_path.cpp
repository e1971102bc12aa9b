// SPDX-License-Identifier: MIT
#include "platform/game_path.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>
#include <vector>

#include "platform/path_text.h"

namespace orrerix {
namespace fs = std::filesystem;
namespace {

// More than any real path has.
constexpr std::size_t kMostComponents = 4096;

char FoldedLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

std::string Folded(std::string_view name) {
  std::string folded(name);
  std::transform(folded.begin(), folded.end(), folded.begin(), FoldedLetter);
  return folded;
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

// Whether Windows takes a name for a device, in any folder and with any ending: "nul", "COM1.ini".
bool NamesDevice(std::string_view name) {
  constexpr std::array<std::string_view, 6> devices = {"con", "prn",    "aux",
                                                       "nul", "conin$", "conout$"};
  constexpr std::array<std::string_view, 2> ports = {"com", "lpt"};
  std::string base = Folded(name.substr(0, name.find('.')));
  base.erase(base.find_last_not_of(' ') + 1);
  const auto isBase = [&](std::string_view device) { return base == device; };
  if (std::any_of(devices.begin(), devices.end(), isBase)) return true;
  // The number has one character: a digit, or one raised, which UTF-8 writes in two bytes.
  if (base.size() != 4 && base.size() != 5) return false;
  base.resize(3);
  return std::any_of(ports.begin(), ports.end(), isBase);
}

// Walks down the components of a path; `accept` says whether what is found will do. Where several
// spellings are on disk each place is searched once, also if links lead to it on many ways.
template <typename Accept>
class PathSearch {
 public:
  PathSearch(FolderListings& listings, std::vector<std::string> components, Accept accept)
      : listings_(listings), components_(std::move(components)), accept_(accept) {}

  // The place of the components from `at` on, in a folder so many levels below the first one.
  std::optional<fs::path> From(fs::path folder, std::size_t at = 0, std::size_t level = 0) {
    for (; at < components_.size() && components_[at] == ".."; ++at, --level) {
      if (level == 0) return std::nullopt;
      folder = folder.parent_path();
    }
    if (at == components_.size()) return accept_(folder) ? std::optional(folder) : std::nullopt;
    const std::string& name = components_[at];
    if (kFileNamesIgnoreCase && name.find(':') != std::string::npos) return std::nullopt;
    const fs::path exact = SystemPath(folder / PathOf(name));
    std::error_code error;
    const bool isThere = fs::exists(exact, error);
    if (isThere) {
      if (auto found = From(exact, at + 1, level + 1)) return found;
    }
    if (kFileNamesIgnoreCase) return std::nullopt;
    const std::vector<fs::path> others = listings_.OtherSpellings(folder, name);
    // A single way cannot meet another.
    const bool isFork = others.size() + (isThere ? 1 : 0) > 1;
    if (isThere && isFork) IsNew(exact, at + 1);
    for (const fs::path& other : others) {
      if (isFork && !IsNew(other, at + 1)) continue;
      if (auto found = From(other, at + 1, level + 1)) return found;
    }
    return std::nullopt;
  }

 private:
  // Notes a place where the components from `at` on are looked for. False if it was one already.
  bool IsNew(const fs::path& folder, std::size_t at) {
    std::error_code error;
    const fs::path real = fs::canonical(folder, error);
    return !error && searched_.emplace(real, at).second;
  }

  FolderListings& listings_;
  std::vector<std::string> components_;
  Accept accept_;
  std::set<std::pair<fs::path, std::size_t>> searched_;
};

// The place of the components where every spelling leads to the same one and the system finds it in
// one step. Nothing on systems where the case of names counts, and for ways up. A colon would name
// another disk, or a part of a file.
std::optional<fs::path> OnlyPlace(fs::path folder, const std::vector<std::string>& components) {
  if (!kFileNamesIgnoreCase) return std::nullopt;
  for (const std::string& component : components) {
    if (component == ".." || component.find(':') != std::string::npos) return std::nullopt;
    folder /= PathOf(component);
  }
  return SystemPath(folder);
}

template <typename Accept>
std::optional<fs::path> Find(FolderListings& listings, const fs::path& folder,
                             std::vector<std::string> components, Accept accept) {
  if (auto place = OnlyPlace(folder, components)) {
    return accept(*place) ? std::move(place) : std::nullopt;
  }
  return PathSearch<Accept>(listings, std::move(components), accept).From(folder);
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

std::vector<FolderListings::Name> FolderListings::NamesIn(const fs::path& folder) {
  std::vector<Name> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::string name = TextOf(entry->path().filename());
    names.push_back({Folded(name), std::move(name)});
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::vector<fs::path> FolderListings::OtherSpellings(const fs::path& folder,
                                                     std::string_view name) {
  auto known = names_.find(folder.native());
  if (known == names_.end()) known = names_.emplace(folder.native(), NamesIn(folder)).first;
  const Name first{Folded(name), ""};
  std::vector<fs::path> others;
  for (auto other = std::lower_bound(known->second.begin(), known->second.end(), first);
       other != known->second.end() && other->Folded == first.Folded; ++other) {
    if (other->AsItIs != name) others.push_back(folder / PathOf(other->AsItIs));
  }
  return others;
}

std::optional<fs::path> FindFolder(const fs::path& below, std::string_view path) {
  std::vector<std::string> components = Components(path);
  if (components.size() > kMostComponents) return std::nullopt;
  FolderListings listings;
  return Find(listings, below, std::move(components), IsFolder);
}

std::optional<std::vector<std::string>> GameFolder::ComponentsOf(std::string_view path) const {
  if (!path.starts_with(text_) || path.find('\0') != std::string_view::npos) return std::nullopt;
  std::vector<std::string> components = Components(path.substr(text_.size()));
  if (components.size() > kMostComponents) return std::nullopt;
  return components;
}

std::optional<fs::path> GameFolder::FindFile(std::string_view path) const {
  auto components = ComponentsOf(path);
  if (!components) return std::nullopt;
  return Find(listings_, PathOf(text_), std::move(*components), IsFile);
}

std::optional<std::ifstream> GameFolder::OpenFile(std::string_view path) const {
  auto components = ComponentsOf(path);
  if (!components) return std::nullopt;
  // What can be opened is there: one question to the system instead of two.
  const auto place = OnlyPlace(PathOf(text_), *components);
  if (place && std::none_of(components->begin(), components->end(), NamesDevice)) {
    std::ifstream stream(*place, std::ios::binary);
    if (stream.is_open()) return stream;
  }
  const auto file = Find(listings_, PathOf(text_), std::move(*components), IsFile);
  return file ? std::optional(std::ifstream(*file, std::ios::binary)) : std::nullopt;
}

}  // namespace orrerix
