// SPDX-License-Identifier: MIT
#include "cli/spelling.h"

#include <algorithm>
#include <numeric>
#include <optional>

#include "db/values/text.h"

namespace orrerix {
namespace {

// The edit distance, one row of the table of all prefixes at a time.
std::size_t Distance(std::string_view from, std::string_view to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < from.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t k = 0; k < to.size(); ++k) {
      const std::size_t substituted = diagonal + (from[i] == to[k] ? 0 : 1);
      diagonal = row[k + 1];
      row[k + 1] = std::min({substituted, row[k] + 1, row[k + 1] + 1});
    }
  }
  return row.back();
}

}  // namespace

std::string MostAlike(std::string_view text, const std::vector<std::string>& candidates) {
  const std::string sought = FoldAscii(text);
  std::optional<std::size_t> shortest;
  std::string closest;
  for (const std::string& candidate : candidates) {
    const std::size_t distance = Distance(sought, FoldAscii(candidate));
    if (shortest && distance >= *shortest) continue;
    shortest = distance;
    closest = candidate;
  }
  return closest;
}

}  // namespace orrerix
