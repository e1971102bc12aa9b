// SPDX-License-Identifier: MIT
// Bookmarks and notes on what the map shows, in a text file of their own.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "map/grid/zoom.h"

namespace orrerix {

struct Bookmark {
  std::string Name;
  std::string Note;   // may have several lines
  std::string Place;  // nickname of an object; empty for the view alone
  ZoomRectangle View;

  bool operator==(const Bookmark&) const = default;
};

using Bookmarks = std::vector<Bookmark>;

// The text of a bookmarks file: a line that says what it is, then one line for each, with tabs
// between its sides, place, name and note.
std::string BookmarksText(const Bookmarks& bookmarks);

// The bookmarks of such a text; nothing if it does not begin as one. A line that is none, or whose
// sides are not in the grid, is passed over.
std::optional<Bookmarks> ReadBookmarks(std::string_view text);

// The file's bookmarks; nothing if it is not there, cannot be read or is no file of bookmarks.
std::optional<Bookmarks> LoadBookmarks(const std::filesystem::path& file);

// Replaces the file in one step. False if it cannot be written; the old one then stays.
bool SaveBookmarks(const std::filesystem::path& file, const Bookmarks& bookmarks);

// Adds those that are not there yet, and returns how many that were.
struct MergedBookmarks {
  Bookmarks All;
  std::size_t Added = 0;
};
MergedBookmarks Merged(Bookmarks known, const Bookmarks& more);

}  // namespace orrerix
