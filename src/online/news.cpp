// SPDX-License-Identifier: MIT
#include "online/news.h"

#include <fmt/format.h>

#include "db/values/number_text.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

// Takes the next line off a text; without a line end both stay as they are.
void TakeLine(std::string_view& text, std::string& line) {
  const std::size_t end = text.find(kLineEnd);
  if (end == std::string_view::npos) return;
  line = text.substr(0, end);
  text.remove_prefix(end + kLineEnd.size());
}

}  // namespace

bool IsNewsFile(std::string_view text) {
  return Val(text) > 0;
}

News ReadNews(std::string_view text) {
  std::string whole(text);
  if (!text.ends_with(kLineEnd)) whole += kLineEnd;
  std::string_view rest = whole;
  News news;
  TakeLine(rest, news.LatestVersion);
  TakeLine(rest, news.UpdateToolTip);
  TakeLine(rest, news.UpdateAddress);
  NewsEntry entry;
  while (Len(Trim(rest)) > kLineEnd.size()) {
    TakeLine(rest, entry.Caption);
    TakeLine(rest, entry.ToolTip);
    TakeLine(rest, entry.Address);
    if (entry.Caption.empty() || entry.ToolTip.empty() || entry.Address.empty()) continue;
    news.Entries.push_back(entry);
  }
  return news;
}

bool IsUpdateDue(const AppVersion& running, std::string_view latestVersion) {
  const std::string text = fmt::format("{}.{}", running.Major, running.Minor);
  return Val(text) < Val(latestVersion) && text != latestVersion;
}

}  // namespace orrerix
