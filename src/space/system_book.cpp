// SPDX-License-Identifier: MIT
#include "space/system_book.h"

#include <algorithm>

#include "atlas/places.h"
#include "db/values/text.h"

namespace orrerix {
namespace {

// The square of a system shows this many units at the scale 1.
constexpr double kUnitsAcross = 200000 / 0.75;

std::vector<std::string_view> SplitAtCommas(std::string_view text) {
  std::vector<std::string_view> parts;
  for (std::size_t comma = 0; comma != std::string_view::npos;) {
    comma = text.find(',');
    parts.push_back(Trim(text.substr(0, comma)));
    text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
  }
  return parts;
}

std::optional<MapCell> ReadCell(std::string_view text) {
  const auto parts = SplitAtCommas(text);
  if (parts.size() != 2) return std::nullopt;
  const Figure x = ParseFigure(parts[0]);
  const Figure y = ParseFigure(parts[1]);
  if (!x || !y || *x < 0 || *y < 0 || *x > MapMaxX || *y > MapMaxY) return std::nullopt;
  return MapCell{static_cast<int>(*x), static_cast<int>(*y)};
}

// The part below the universe's folder: system files are named from there, and the driver writes
// them with all that is above.
std::string FileKey(std::string_view path) {
  std::string key = FoldAscii(path);
  std::replace(key.begin(), key.end(), '/', '\\');
  const std::size_t below = key.rfind("\\systems\\");
  if (below != std::string::npos) return key.substr(below + 1);
  const std::size_t start = key.find_first_not_of('\\');
  return start == std::string::npos ? std::string() : key.substr(start);
}

}  // namespace

std::optional<GamePosition> ReadPosition(std::string_view text) {
  const auto parts = SplitAtCommas(text);
  if (parts.size() < 3) return std::nullopt;
  const Figure east = ParseFigure(parts[0]);
  const Figure south = ParseFigure(parts[2]);
  if (!east || !south) return std::nullopt;
  return GamePosition{*east, *south};
}

std::array<double, 3> ReadTriple(std::string_view text) {
  std::array<double, 3> numbers{};
  const auto parts = SplitAtCommas(text);
  for (std::size_t i = 0; i < std::min(parts.size(), numbers.size()); ++i) {
    numbers[i] = ParseFigure(parts[i]).value_or(0);
  }
  return numbers;
}

SystemBook::SystemBook(const SourceTables& tables) {
  const SourceTable& rows = tables["Systems"];
  for (std::size_t i = 0; i < rows.RowCount(); ++i) {
    const SourceRow row = rows.Row(i);
    const auto cell = ReadCell(row.Text("pos"));
    const std::string nickname = row.Text("nickname");
    if (!cell || nickname.empty()) continue;
    const double scale = row.Number("navmapscale").value_or(0);
    byNickname_.try_emplace(FoldAscii(nickname), systems_.size());
    if (const std::string file = FileKey(row.Text("file")); !file.empty()) {
      byFile_.try_emplace(file, systems_.size());
    }
    systems_.push_back({nickname, SystemNameOf(tables, nickname), *cell,
                        kUnitsAcross / (scale > 0 ? scale : 1), std::nullopt});
  }
}

const SystemArea* SystemBook::Find(std::string_view nickname) const {
  const auto found = byNickname_.find(FoldAscii(Trim(nickname)));
  return found == byNickname_.end() ? nullptr : &systems_[found->second];
}

const SystemArea* SystemBook::OfFile(std::string_view path) const {
  const auto found = byFile_.find(FileKey(path));
  return found == byFile_.end() ? nullptr : &systems_[found->second];
}

CellFraction SystemBook::PlaceIn(const SystemArea& system, GamePosition position) {
  return {0.5 + position.East / system.UnitsAcross, 0.5 + position.South / system.UnitsAcross};
}

}  // namespace orrerix
