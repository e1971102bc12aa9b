// SPDX-License-Identifier: MIT
#include "routes/game_lines.h"

#include <fstream>
#include <iterator>
#include <optional>

#include "import/ini/packed_ini.h"

namespace orrerix {
namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view TrimBlanks(std::string_view text) {
  const std::size_t begin = text.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(kBlanks) - begin + 1);
}

std::optional<std::string> ReadGameText(const GameFolder& game, const std::string& path) {
  auto stream = game.OpenFile(game.Text() + path);
  if (!stream) return std::nullopt;
  std::string bytes(std::istreambuf_iterator<char>(*stream), {});
  if (stream->bad()) return std::nullopt;
  if (IsPackedIni(bytes)) return UnpackIni(bytes);
  return bytes;
}

// Takes the next line off a text, without its line end and its comment.
std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = text.find_first_of("\r\n");
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return TrimBlanks(line.substr(0, line.find(';')));
}

}  // namespace

void ForEachGameLine(const GameFolder& game, const std::string& path,
                     const std::function<void(const GameLine&)>& take) {
  const auto text = ReadGameText(game, path);
  if (!text) return;
  std::string_view rest = *text;
  std::string_view section;
  while (!rest.empty()) {
    const std::string_view line = TakeLine(rest);
    if (line.starts_with('[')) {
      section = TrimBlanks(line.substr(1, line.find(']') - 1));
      continue;
    }
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    take({section, TrimBlanks(line.substr(0, equals)), TrimBlanks(line.substr(equals + 1))});
  }
}

}  // namespace orrerix
