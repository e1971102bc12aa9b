// SPDX-License-Identifier: MIT
#include "db/values/like_pattern.h"

#include <optional>
#include <string>
#include <vector>

#include "db/values/text.h"

namespace orrerix {
namespace {

std::u32string Decode(std::string_view text) {
  std::u32string decoded;
  for (std::size_t at = 0; at < text.size();) decoded.push_back(NextCodePoint(text, at));
  return decoded;
}

}  // namespace

bool LikePattern::Place::Fits(char32_t c) const {
  if (AnyCharacter) return true;
  for (const Range& range : Ranges) {
    if (c >= range.First && c <= range.Last) return !Negated;
  }
  return Negated;
}

// What stands between brackets; nothing if a range runs from high to low.
std::optional<LikePattern::Place> LikePattern::ReadSet(std::u32string_view set) {
  Place place;
  if (!set.empty() && set.front() == U'!') {
    place.Negated = true;
    set.remove_prefix(1);
  }
  for (std::size_t i = 0; i < set.size(); ++i) {
    Range range{set[i], set[i]};
    if (i + 2 < set.size() && set[i + 1] == U'-') {
      range.Last = set[i + 2];
      i += 2;
      if (range.First > range.Last) return std::nullopt;
    }
    place.Ranges.push_back(range);
  }
  return place;
}

std::optional<LikePattern> LikePattern::Compile(std::string_view text) {
  const std::u32string decoded = Decode(FoldAscii(text));
  const std::u32string_view pattern = decoded;
  LikePattern compiled;
  std::vector<Place>& places = compiled.places_;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const char32_t c = pattern[i];
    if (c == U'[') {
      const std::size_t end = pattern.find(U']', i);
      if (end == std::u32string_view::npos) return std::nullopt;
      const std::u32string_view set = pattern.substr(i + 1, end - i - 1);
      i = end;
      if (set.empty()) continue;  // "[]" stands for nothing at all
      std::optional<Place> place = ReadSet(set);
      if (!place) return std::nullopt;
      places.push_back(std::move(*place));
    } else {
      Place place;
      place.AnyRun = c == U'*';
      place.AnyCharacter = c == U'?';
      place.Ranges.push_back(c == U'#' ? Range{U'0', U'9'} : Range{c, c});
      places.push_back(std::move(place));
    }
  }
  return compiled;
}

// A greedy match with one point of return: the last run that was met.
bool LikePattern::Matches(std::string_view rawText) const {
  const std::u32string text = Decode(FoldAscii(rawText));
  const std::vector<Place>& places = places_;
  std::size_t at = 0;
  std::size_t place = 0;
  std::size_t runPlace = places.size();
  std::size_t runAt = 0;
  while (at < text.size()) {
    if (place < places.size() && places[place].AnyRun) {
      runPlace = place++;
      runAt = at;
    } else if (place < places.size() && places[place].Fits(text[at])) {
      ++place;
      ++at;
    } else if (runPlace < places.size()) {
      place = runPlace + 1;
      at = ++runAt;
    } else {
      return false;
    }
  }
  while (place < places.size() && places[place].AnyRun) ++place;
  return place == places.size();
}

}  // namespace orrerix
