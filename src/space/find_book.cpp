// SPDX-License-Identifier: MIT
#include "space/find_book.h"

#include <algorithm>
#include <tuple>

#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr std::size_t kBefore = 30;  // bytes of an info text around what was found
constexpr std::size_t kAfter = 60;

// How well a thing fits, best first.
enum class Fit { Name, NameStart, WordStart, InName, InNickname, InInfoText, None };

Fit FitOf(const std::string& name, const std::string& text) {
  std::size_t at = name.find(text);
  if (at == std::string::npos) return Fit::None;
  if (at == 0) return name.size() == text.size() ? Fit::Name : Fit::NameStart;
  for (; at != std::string::npos; at = name.find(text, at + 1)) {
    if (name[at - 1] == ' ' || name[at - 1] == '-') return Fit::WordStart;
  }
  return Fit::InName;
}

bool IsInsideCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

// Whole characters of a text around a place in it.
std::string PassageAt(const std::string& text, std::size_t at) {
  std::size_t first = at > kBefore ? at - kBefore : 0;
  std::size_t last = std::min(text.size(), at + kAfter);
  while (first > 0 && IsInsideCharacter(text[first])) --first;
  while (last < text.size() && IsInsideCharacter(text[last])) ++last;
  return (first > 0 ? "... " : "") + text.substr(first, last - first) +
         (last < text.size() ? " ..." : "");
}

}  // namespace

FindBook::FindBook(std::vector<FoundThing> things) : things_(std::move(things)) {
  keys_.reserve(things_.size());
  for (const FoundThing& thing : things_) {
    keys_.push_back({Lcase(thing.Name), Lcase(thing.Nickname), Lcase(thing.InfoText)});
  }
}

FoundRows FindBook::Find(std::string_view text, std::size_t most) const {
  const std::string wanted = Lcase(Trim(text));
  if (wanted.empty()) return {};
  struct Hit {
    Fit How;
    std::size_t Thing;
    std::size_t InfoPlace;
  };
  std::vector<Hit> hits;
  for (std::size_t i = 0; i < things_.size(); ++i) {
    const Keys& keys = keys_[i];
    Fit fit = FitOf(keys.Name, wanted);
    if (fit == Fit::None && keys.Nickname.find(wanted) != std::string::npos) fit = Fit::InNickname;
    std::size_t place = std::string::npos;
    if (fit == Fit::None) place = keys.InfoText.find(wanted);
    if (place != std::string::npos) fit = Fit::InInfoText;
    if (fit != Fit::None) hits.push_back({fit, i, place});
  }
  std::stable_sort(hits.begin(), hits.end(), [this](const Hit& a, const Hit& b) {
    return std::tie(a.How, keys_[a.Thing].Name) < std::tie(b.How, keys_[b.Thing].Name);
  });
  FoundRows found;
  found.Count = hits.size();
  for (std::size_t i = 0; i < std::min(most, hits.size()); ++i) {
    const FoundThing& thing = things_[hits[i].Thing];
    const bool inInfo = hits[i].How == Fit::InInfoText;
    found.Rows.push_back(
        {&thing, inInfo ? PassageAt(thing.InfoText, hits[i].InfoPlace) : std::string()});
  }
  return found;
}

}  // namespace orrerix
