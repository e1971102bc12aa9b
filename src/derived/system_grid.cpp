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
  universe.DB.ExecuteNative(routine,
                            "CREATE INDEX IF NOT EXISTS \"Systems lookup pos\" ON Systems (pos)");
  for (int y = 0; y <= MapMaxY; ++y) {
    for (int x = 0; x <= MapMaxX; ++x) {
      Recordset system = SystemAt(routine, universe, {x, y});
      text_ += GridCell(system.AtEnd() ? std::string() : system["nickname"].Get().Text());
    }
  }
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
  const double scale = system.AtEnd() ? 0 : Val(system["navmapscale"].Get().Text());
  return scale > 0 ? scale : 1.0;
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
