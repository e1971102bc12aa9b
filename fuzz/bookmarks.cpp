// SPDX-License-Identifier: MIT
#include "map/bookmarks.h"

#include <cstdlib>

#include "support.h"

namespace {

using namespace orrerix;

// What is read again from the text that the bookmarks are written as.
Bookmarks Again(const Bookmarks& bookmarks) {
  const auto read = ReadBookmarks(BookmarksText(bookmarks));
  if (!read || read->size() != bookmarks.size()) std::abort();
  return *read;
}

}  // namespace

// The input is a file of bookmarks, and the fields of one. None gets lost when they are saved, and
// none changes once it was written.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input = InputText(data, size);
  if (const auto bookmarks = ReadBookmarks(input)) {
    const Bookmarks saved = Again(*bookmarks);
    if (Again(saved) != saved) std::abort();
    if (Merged(saved, saved).Added != 0) std::abort();
  }
  Steering steering(data, size);
  const Bookmark made{std::string(steering.Text()), std::string(steering.Text()),
                      std::string(steering.Text()), ZoomRectangle{4, 4, 12, 12}};
  const Bookmarks saved = Again({made});
  if (Again(saved) != saved) std::abort();
  return 0;
}
