// SPDX-License-Identifier: MIT
#include "derived/system_grid.h"

#include <fmt/format.h>

#include "db/values/number_text.h"
#include "db/values/text.h"
#include "import/ini/block_text.h"
#include "import/ini/ini_text.h"

namespace orrerix {
namespace {

constexpr std::size_t kNameWidth = 10;
constexpr int kCellWidth = 12;
constexpr int kColumns = MapMaxX + 1;

std::string GridCell(std::string_view nickname) {
  std::string cell = Ucase(nickname) + std::string(kNameWidth, ' ');
  cell.resize(Left(cell, kNameWidth).size());
  return "*" + cell + "*";
}

Recordset SystemAt(FailureSink& routine, Universe& universe, MapCell cell) {
  return universe.DB.OpenRecordset(routine, "SELECT * from Systems where pos = '{}'",
                                   {CellText(cell)});
}

double ScaleOf(const Value& navmapscale) {
  const double scale = Val(navmapscale.Text());
  return scale > 0 ? scale : 1.0;
}

std::int32_t WholeNumber(std::string_view text) {
  const auto number = ToLong(Val(text));
  if (!number) throw RuntimeFailure(failure_number::kOverflow);
  return *number;
}

}  // namespace

std::string CellText(MapCell cell) {
  return fmt::format("{}, {}", cell.X, cell.Y);
}

SystemGrid::SystemGrid(FailureSink& routine, Universe& universe) {
  std::unordered_map<std::string, std::string> nicknames;  // of the first system in each cell
  universe.DB.VisitRows(
      routine, "Systems", {"pos", "nickname", "navmapscale"},
      [&](std::int64_t, std::span<const HeldRows::Cell> system) {
        if (nicknames
                .emplace(HeldRows::ValueOf(system[0]).Text(), HeldRows::ValueOf(system[1]).Text())
                .second) {
          scales_.emplace(HeldRows::ValueOf(system[0]).Text(),
                          ScaleOf(HeldRows::ValueOf(system[2])));
        }
      });
  for (int y = 0; y <= MapMaxY; ++y) {
    for (int x = 0; x <= MapMaxX; ++x) text_ += GridCell(nicknames[CellText({x, y})]);
  }
}

double SystemGrid::Scale(MapCell cell) const {
  const auto found = scales_.find(CellText(cell));
  return found == scales_.end() ? 1.0 : found->second;
}

MapCell SystemGrid::FindCell(std::string_view systemNickname) {
  std::string gridCell = GridCell(systemNickname);
  if (const auto known = found_.find(gridCell); known != found_.end()) return known->second;
  const MapCell cell = Search(gridCell);
  found_.emplace(std::move(gridCell), cell);
  return cell;
}

MapCell SystemGrid::Search(const std::string& gridCell) const {
  const std::size_t found = FindText(text_, gridCell);
  if (found == std::string::npos) return {};
  const int position = static_cast<int>(Len(std::string_view(text_).substr(0, found))) + 1;
  const int index = position / kCellWidth;
  return {index % kColumns, index / kColumns};
}

double SystemScale(FailureSink& routine, Universe& universe, MapCell cell) {
  Recordset system = SystemAt(routine, universe, cell);
  return system.AtEnd() ? 1.0 : ScaleOf(system["navmapscale"].Get());
}

ObjectPosition ParsePosition(std::string_view pos) {
  const std::string_view a = RequireBeforeComma(pos);
  const std::string_view rest = RequireAfterComma(pos);
  const std::string_view b = RequireBeforeComma(rest);
  return {WholeNumber(a), WholeNumber(b), WholeNumber(RequireAfterComma(rest))};
}

double MapFraction(std::int32_t units, double scale) {
  const auto threefold = ToLong(3.0 * units);
  if (!threefold) throw RuntimeFailure(failure_number::kOverflow);
  return ((*threefold / 4.0) * scale + 100000) / 200000;
}

PlacedObject PlaceObject(Routine& routine, std::string_view pos, double scale,
                         CellFraction before) {
  const ObjectPosition position = routine.Or(ObjectPosition(), [&] { return ParsePosition(pos); });
  return {position,
          {routine.Or(before.X, [&] { return MapFraction(position.X, scale); }),
           routine.Or(before.Y, [&] { return MapFraction(position.Z, scale); })}};
}

}  // namespace orrerix
