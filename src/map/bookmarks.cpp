// SPDX-License-Identifier: MIT
#include "map/bookmarks.h"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iterator>
#include <system_error>

#include <fmt/format.h>

#include "platform/path_text.h"

namespace orrerix {
namespace {

constexpr std::string_view kFirstLine = "Orrerix bookmarks 1";
constexpr std::size_t kFields = 7;

// Tabs and ends of lines separate fields and lines.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '\\') escaped += "\\\\";
    if (c == '\t') escaped += "\\t";
    if (c == '\n') escaped += "\\n";
    if (c != '\\' && c != '\t' && c != '\n' && c != '\r') escaped += c;
  }
  return escaped;
}

std::string Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      plain += text[i];
      continue;
    }
    const char c = text[++i];
    plain += c == 't' ? '\t' : c == 'n' ? '\n' : c;
  }
  return plain;
}

std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (std::size_t end = 0; end != std::string_view::npos;) {
    end = text.find(separator);
    parts.push_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return parts;
}

// -1, which is on no grid, for what is no number.
int NumberOf(std::string_view text) {
  int number = -1;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? number : -1;
}

std::string_view WithoutReturn(std::string_view line) {
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

std::string BookmarksText(const Bookmarks& bookmarks) {
  std::string text = fmt::format("{}\n", kFirstLine);
  for (const Bookmark& mark : bookmarks) {
    text += fmt::format("{}\t{}\t{}\t{}\t{}\t{}\t{}\n", mark.View.X1, mark.View.Y1, mark.View.X2,
                        mark.View.Y2, Escaped(mark.Place), Escaped(mark.Name), Escaped(mark.Note));
  }
  return text;
}

std::optional<Bookmarks> ReadBookmarks(std::string_view text) {
  const std::vector<std::string_view> lines = Split(text, '\n');
  if (WithoutReturn(lines.front()) != kFirstLine) return std::nullopt;
  Bookmarks bookmarks;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const auto fields = Split(WithoutReturn(lines[i]), '\t');
    if (fields.size() != kFields) continue;
    const ZoomRectangle view{NumberOf(fields[0]), NumberOf(fields[1]), NumberOf(fields[2]),
                             NumberOf(fields[3])};
    if (!view.IsValid()) continue;
    bookmarks.push_back({Unescaped(fields[5]), Unescaped(fields[6]), Unescaped(fields[4]), view});
  }
  return bookmarks;
}

std::optional<Bookmarks> LoadBookmarks(const std::filesystem::path& file) {
  std::ifstream in(SystemPath(file), std::ios::binary);
  if (!in) return std::nullopt;
  return ReadBookmarks(std::string{std::istreambuf_iterator<char>(in), {}});
}

bool SaveBookmarks(const std::filesystem::path& file, const Bookmarks& bookmarks) {
  std::filesystem::path written = file;
  written += ".new";
  {
    std::ofstream out(SystemPath(written), std::ios::binary);
    const std::string text = BookmarksText(bookmarks);
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.close();
    if (!out) return false;
  }
  std::error_code error;
  std::filesystem::rename(SystemPath(written), SystemPath(file), error);
  return !error;
}

MergedBookmarks Merged(Bookmarks known, const Bookmarks& more) {
  MergedBookmarks merged{std::move(known), 0};
  for (const Bookmark& mark : more) {
    if (std::find(merged.All.begin(), merged.All.end(), mark) != merged.All.end()) continue;
    merged.All.push_back(mark);
    ++merged.Added;
  }
  return merged;
}

}  // namespace orrerix
