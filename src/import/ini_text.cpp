// SPDX-License-Identifier: MIT
#include "import/ini_text.h"

#include <algorithm>
#include <cstring>

#include "db/text.h"

namespace orrerix {
namespace {

std::string_view UpToCarriageReturn(std::string_view text) {
  return Trim(text.substr(0, text.find('\r')));
}

// Line ends only; blanks before "=" come later.
std::string WithLineEnds(std::string_view text) {
  std::string fixed;
  fixed.reserve(text.size() + text.size() / 16);
  fixed.push_back(text.front());
  for (std::size_t i = 1; i + 1 < text.size(); ++i) {
    const char c = text[i];
    if (c == '\n' && fixed.back() != '\r') fixed.push_back('\r');
    fixed.push_back(c);
    if (c == '\r' && text[i + 1] != '\n') fixed.push_back('\n');
  }
  if (text.size() > 1) fixed.push_back(text.back());
  return fixed;
}

void ShrinkBlanksBeforeSigns(std::string& text) {
  auto end = text.begin();
  for (const char c : text) {
    if (c == '=') {
      while (end - text.begin() > 1 && *(end - 1) == ' ' && *(end - 2) == ' ') --end;
    }
    *end++ = c;
  }
  text.erase(end, text.end());
}

}  // namespace

std::string UpperAscii(std::string_view text) {
  std::string upper(text);
  for (char& c : upper) c = static_cast<char>(c >= 'a' && c <= 'z' ? c - 32 : c);
  return upper;
}

std::size_t FindText(std::string_view text, std::string_view part) {
  const void* found = memmem(text.data(), text.size(), part.data(), part.size());
  if (found == nullptr) return std::string_view::npos;
  return static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

std::string_view FindINIValue(std::string_view text, std::string_view upperText,
                              std::string_view upperKey) {
  std::string sought(upperKey);
  sought += " =";
  std::size_t found = FindText(upperText, sought);
  if (found != std::string_view::npos) {
    const std::size_t start = found + sought.size() + 1;
    return start < text.size() ? UpToCarriageReturn(text.substr(start)) : std::string_view();
  }
  sought.erase(sought.size() - 2, 1);
  found = FindText(upperText, sought);
  if (found == std::string_view::npos) return {};
  return UpToCarriageReturn(text.substr(found + sought.size()));
}

std::string_view GetINIValue(std::string_view text, std::string_view key) {
  return FindINIValue(text, UpperAscii(text), UpperAscii(key));
}

std::string RemoveComments(std::string_view text) {
  std::string clean;
  clean.reserve(text.size());
  while (true) {
    const std::size_t comment = text.find(';');
    clean.append(text.substr(0, comment));
    if (comment == std::string_view::npos) return clean;
    const std::size_t lineEnd = text.find('\r', comment);
    if (lineEnd == std::string_view::npos) return clean;
    text.remove_prefix(lineEnd);
  }
}

void FixCrLf(std::string& text) {
  if (!text.empty()) text = WithLineEnds(text);
  ShrinkBlanksBeforeSigns(text);
}

}  // namespace orrerix
