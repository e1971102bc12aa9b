// SPDX-License-Identifier: MIT
#include "import/resources/info_card.h"

#include <cstddef>
#include <string>

#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr std::string_view kProlog = "xml version=\"1.0\" encoding=\"UTF-16\"?>";
constexpr std::string_view kLineEnd = "\r\n";

// The steps work in the text itself, whose kept parts move to the front: cards come by the
// thousand. A part never moves back, as no step makes a text longer.
class Kept {
 public:
  explicit Kept(std::string& text) : text_(text) {}

  void Append(std::string_view part) {
    std::char_traits<char>::move(text_.data() + size_, part.data(), part.size());
    size_ += part.size();
  }
  std::string_view View() const { return std::string_view(text_).substr(0, size_); }
  void Shorten(std::size_t size) { size_ = size; }

  // The text is then what was kept.
  void Finish() { text_.resize(size_); }

 private:
  std::string& text_;
  std::size_t size_ = 0;
};

// Puts a text in the place of every longer one.
void ReplaceAll(std::string& whole, std::string_view from, std::string_view shorter) {
  Kept kept(whole);
  std::string_view text = whole;
  while (true) {
    const std::size_t found = text.find(from);
    kept.Append(text.substr(0, found));
    if (found == std::string_view::npos) return kept.Finish();
    kept.Append(shorter);
    text.remove_prefix(found + from.size());
  }
}

// Deletes from each `open` to the `close` after it, up to the first `close` that comes too early.
void Strip(std::string& whole, char open, char close) {
  Kept kept(whole);
  std::string_view text = whole;
  while (true) {
    const std::size_t from = text.find(open);
    const std::size_t to = text.find(close);
    if (from == std::string_view::npos || to == std::string_view::npos || to < from) break;
    kept.Append(text.substr(0, from));
    text.remove_prefix(to + 1);
  }
  kept.Append(text);
  kept.Finish();
}

// Deletes every run of a character that stands right before a CR.
void RemoveBeforeLineEnds(std::string& whole, char unwanted) {
  if (whole.find(unwanted) == std::string::npos) return;
  Kept kept(whole);
  std::string_view text = whole;
  while (true) {
    const std::size_t lineEnd = text.find('\r');
    kept.Append(text.substr(0, lineEnd));
    if (lineEnd == std::string_view::npos) return kept.Finish();
    kept.Shorten(kept.View().find_last_not_of(unwanted) + 1);
    kept.Append("\r");
    text.remove_prefix(lineEnd + 1);
  }
}

void RemoveEmptyLines(std::string& whole) {
  Kept kept(whole);
  std::string_view text = whole;
  while (true) {
    const std::size_t lineEnd = text.find(kLineEnd);
    kept.Append(text.substr(0, lineEnd));
    if (lineEnd == std::string_view::npos) return kept.Finish();
    if (!kept.View().ends_with(kLineEnd)) kept.Append(kLineEnd);
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
  std::string text(card);
  ReplaceAll(text, "<PARA/>", kLineEnd);
  Strip(text, '<', '>');
  Strip(text, '&', ';');
  for (int round = 0; round < 2; ++round) {
    RemoveBeforeLineEnds(text, ' ');
    RemoveBeforeLineEnds(text, '\t');
  }
  RemoveEmptyLines(text);
  return text;
}

}  // namespace orrerix
