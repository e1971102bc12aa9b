// SPDX-License-Identifier: MIT
#include "space/game_sections.h"

#include <fstream>
#include <iterator>
#include <optional>

#include "db/values/text.h"
#include "import/ini/packed_ini.h"

namespace orrerix {
namespace {

std::string_view TrimLine(std::string_view line) {
  constexpr std::string_view kBlank = " \t\r";
  const std::size_t first = line.find_first_not_of(kBlank);
  if (first == std::string_view::npos) return {};
  return line.substr(first, line.find_last_not_of(kBlank) - first + 1);
}

void TakeLine(std::string_view line, std::vector<GameSection>& sections) {
  line = TrimLine(line.substr(0, line.find(';')));
  if (line.starts_with('[')) {
    const std::string_view name = line.substr(1, line.find(']') - 1);
    sections.push_back({FoldAscii(TrimLine(name)), {}});
    return;
  }
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos || sections.empty()) return;
  sections.back().Entries.emplace_back(FoldAscii(TrimLine(line.substr(0, equals))),
                                       TrimLine(line.substr(equals + 1)));
}

}  // namespace

std::string_view GameSection::Value(std::string_view key) const {
  for (const auto& [name, value] : Entries) {
    if (name == key) return value;
  }
  return {};
}

std::vector<GameSection> ReadGameSections(const GameFolder& game, std::string_view path) {
  auto file = game.OpenFile(game.Text() + "\\data\\" + std::string(path));
  if (!file) return {};
  const std::string bytes{std::istreambuf_iterator<char>(*file), {}};
  if (!IsPackedIni(bytes)) return SectionsOf(bytes);
  const std::optional<std::string> text = UnpackIni(bytes);
  return text ? SectionsOf(*text) : std::vector<GameSection>();
}

std::vector<GameSection> SectionsOf(std::string_view text) {
  std::vector<GameSection> sections;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    TakeLine(text.substr(0, end), sections);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return sections;
}

}  // namespace orrerix
