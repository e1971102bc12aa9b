// SPDX-License-Identifier: MIT
#include "info/texts/text_wrap.h"

namespace orrerix {
namespace {

// Cuts the first word off a line, with the blank after it.
std::string_view TakeWord(std::string_view& line) {
  const std::size_t blank = line.find(' ');
  const std::string_view word = line.substr(0, blank);
  line.remove_prefix(blank == std::string_view::npos ? line.size() : blank + 1);
  return word;
}

class Wrapper {
 public:
  Wrapper(const TextMeasure& measure, int fontSize, int width)
      : measure_(measure), fontSize_(fontSize), width_(width) {}

  void AddLine(std::string_view line) {
    while (!line.empty()) {
      if (Width(line) < width_) {
        Append(line);
        return;
      }
      AddWords(line);
    }
  }
  void Append(std::string_view line) {
    text_ += line;
    text_ += kLineEnd;
  }

  std::string Take() { return std::move(text_); }

 private:
  // As many words as fit, at least one.
  void AddWords(std::string_view& line) {
    std::string words(TakeWord(line));
    int width = Width(words);
    while (true) {
      const std::size_t blank = line.find(' ');
      if (blank == std::string_view::npos) break;
      if (Width(line.substr(0, blank + 1)) + width >= width_) break;
      words += ' ';
      words += TakeWord(line);
      width = Width(words);
    }
    Append(words);
  }

  int Width(std::string_view text) const { return measure_.TextWidth(text, fontSize_); }

  const TextMeasure& measure_;
  int fontSize_;
  int width_;
  std::string text_;
};

}  // namespace

std::string WrapText(std::string_view text, const TextMeasure& measure, int fontSize, int width) {
  Wrapper wrapper(measure, fontSize, width);
  while (!text.empty()) {
    if (text.starts_with(kLineEnd)) {
      wrapper.Append("");
      text.remove_prefix(kLineEnd.size());
    }
    const std::size_t end = text.find(kLineEnd);
    if (end == std::string_view::npos) {
      wrapper.AddLine(text);  // the rest gets no blank, and may be nothing
      break;
    }
    wrapper.AddLine(std::string(text.substr(0, end)) + " ");
    text.remove_prefix(end + kLineEnd.size());
  }
  return wrapper.Take();
}

}  // namespace orrerix
