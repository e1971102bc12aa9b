// SPDX-License-Identifier: MIT
// From the game's own paths to real ones.
#pragma once

#include <compare>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orrerix {

// The folder at a path of the game's kind below a real folder, found as GameFolder::FindFile finds
// files; nothing if there is none.
std::optional<std::filesystem::path> FindFolder(const std::filesystem::path& below,
                                                std::string_view path);

// The names in folders, each folder read when it is first asked for and not again.
class FolderListings {
 public:
  // Every other spelling of a name in a folder, in byte order.
  std::vector<std::filesystem::path> OtherSpellings(const std::filesystem::path& folder,
                                                    std::string_view name);

 private:
  struct Name {
    std::string Folded;  // in lower case
    std::string AsItIs;
    auto operator<=>(const Name&) const = default;
  };

  static std::vector<Name> NamesIn(const std::filesystem::path& folder);

  // Sorted, by their folders.
  std::unordered_map<std::filesystem::path::string_type, std::vector<Name>> names_;
};

// The folder of an installed game. Inside the program a path is the text of this folder followed by
// the game's own "\exe\..." or "\data\...", and that is what is stored, logged and shown.
class GameFolder {
 public:
  explicit GameFolder(std::string text) : text_(std::move(text)) {}

  const std::string& Text() const { return text_; }

  // The real file of a path that begins with Text(); nothing if there is none. "\" and "/" count
  // alike, the case of each component does not: the exact spelling is tried first, then all others
  // on disk in byte order, also where two folders differ in case only. Blanks, tabs and dots at the
  // end of a component are ignored. A folder is no file. ".." never leads out of the game folder.
  // Other spellings that come into a folder once it was searched are not seen.
  std::optional<std::filesystem::path> FindFile(std::string_view path) const;

  // The file that FindFile finds, open for its bytes from the start; nothing if there is none. The
  // stream is not open if the file may not be read.
  std::optional<std::ifstream> OpenFile(std::string_view path) const;

 private:
  // The components of a path of this folder; nothing if it is none or if there are too many.
  std::optional<std::vector<std::string>> ComponentsOf(std::string_view path) const;

  std::string text_;
  mutable FolderListings listings_;
};

}  // namespace orrerix
