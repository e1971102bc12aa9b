// SPDX-License-Identifier: MIT
#include "import/resources/info_card.h"

#include <utility>

#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr std::string_view kProlog = "xml version=\"1.0\" encoding=\"UTF-16\"?>";
constexpr std::string_view kLineEnd = "\r\n";

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string replaced;
  replaced.reserve(text.size());
  while (true) {
    const std::size_t found = text.find(from);
    replaced += text.substr(0, found);
    if (found == std::string_view::npos) return replaced;
    replaced += to;
    text.remove_prefix(found + from.size());
  }
}

// Deletes from each `open` to the `close` after it, up to the first `close` that comes too early.
std::string Strip(std::string_view text, char open, char close) {
  std::string stripped;
  stripped.reserve(text.size());
  while (true) {
    const std::size_t from = text.find(open);
    const std::size_t to = text.find(close);
    if (from == std::string_view::npos || to == std::string_view::npos || to < from) break;
    stripped += text.substr(0, from);
    text.remove_prefix(to + 1);
  }
  return stripped.append(text);
}

// Deletes every run of a character that stands right before a CR.
std::string RemoveBeforeLineEnds(std::string whole, char unwanted) {
  if (whole.find(unwanted) == std::string::npos) return whole;
  std::string_view text = whole;
  std::string kept;
  kept.reserve(text.size());
  while (true) {
    const std::size_t lineEnd = text.find('\r');
    kept += text.substr(0, lineEnd);
    if (lineEnd == std::string_view::npos) return kept;
    kept.erase(kept.find_last_not_of(unwanted) + 1);
    kept += '\r';
    text.remove_prefix(lineEnd + 1);
  }
}

std::string RemoveEmptyLines(std::string_view text) {
  std::string kept;
  kept.reserve(text.size());
  while (true) {
    const std::size_t lineEnd = text.find(kLineEnd);
    kept += text.substr(0, lineEnd);
    if (lineEnd == std::string_view::npos) return kept;
    if (!kept.ends_with(kLineEnd)) kept += kLineEnd;
    text.remove_prefix(lineEnd + kLineEnd.size());
  }
}

}  // namespace

std::string_view CleanEnd(std::string_view text) {
  text = Trim(text);
  while (!text.empty() && static_cast<unsigned char>(text.back()) < 14) {
    text.remove_suffix(1);
    text = Trim(text);
  }
  return text;
}

std::string InfoCardToText(std::string_view card) {
  card.remove_prefix(Left(card, 1).size());
  if (const std::size_t prolog = card.find(kProlog); prolog != std::string_view::npos) {
    card.remove_prefix(prolog + kProlog.size());
  }
  if (card.starts_with("xml>")) card.remove_prefix(4);
  std::string text = ReplaceAll(card, "<PARA/>", kLineEnd);
  text = Strip(text, '<', '>');
  text = Strip(text, '&', ';');
  for (int round = 0; round < 2; ++round) {
    text = RemoveBeforeLineEnds(std::move(text), ' ');
    text = RemoveBeforeLineEnds(std::move(text), '\t');
  }
  return RemoveEmptyLines(text);
}

}  // namespace orrerix
