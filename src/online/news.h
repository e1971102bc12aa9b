// SPDX-License-Identifier: MIT
// The news file: the latest version, and links with captions.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/version.h"

namespace orrerix {

// One link.
struct NewsEntry {
  std::string Caption;
  std::string ToolTip;
  std::string Address;
  bool operator==(const NewsEntry&) const = default;
};

struct News {
  std::string LatestVersion;  // "major.minor"; empty if no news came
  std::string UpdateToolTip;
  std::string UpdateAddress;
  std::vector<NewsEntry> Entries;
};

// Whether a text that was fetched is a news file: it begins with a number above 0. A server's error
// page does not.
bool IsNewsFile(std::string_view text);

// Reads a news file, lines ending in CR LF: version, tool tip and address of the update notice,
// then three lines for each entry. An entry with an empty line is dropped; one that the file's end
// cuts short takes its missing lines from the entry before it.
News ReadNews(std::string_view text);

// Whether a later version than the running one is to be announced. Versions compare as plain
// decimals, so 1.10 is below 1.9.
bool IsUpdateDue(const AppVersion& running, std::string_view latestVersion);

}  // namespace orrerix
