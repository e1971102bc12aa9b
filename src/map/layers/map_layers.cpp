// SPDX-License-Identifier: MIT
#include "map/layers/map_layers.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "derived/jump_objects.h"
#include "map/grid/numeric.h"
#include "map/layers/object_classes.h"

namespace orrerix {
namespace {

constexpr Color kGateLine{0xFFFFFF};
constexpr Color kGateLineInPrint{0x000000};
constexpr Color kHoleLine{0x808080};
constexpr Color kLaneLine{0xFF0000};
constexpr Color kIconBorder{0x503828};

// The fields of a row that say where a point of it is.
struct PlaceFields {
  std::string_view MapX, MapY, PosX, PosY;
};

constexpr PlaceFields kPlace{"mapx", "mapy", "posx", "posy"};
constexpr PlaceFields kFrom{"mapx1", "mapy1", "posx1", "posy1"};
constexpr PlaceFields kTo{"mapx2", "mapy2", "posx2", "posy2"};

MapCell CellOf(Recordset& row, const PlaceFields& fields) {
  return {row[fields.MapX].RequireLong(), row[fields.MapY].RequireLong()};
}

MapCell RequireCell(Recordset& row, const PlaceFields& fields) {
  const MapCell cell = CellOf(row, fields);
  if (!CellNames::Holds(cell)) throw RuntimeFailure(failure_number::kSubscriptOutOfRange);
  return cell;
}

// The scale of a system may put a point further off than a control can stand.
float RequireFinite(float twips) {
  if (!std::isfinite(twips)) throw RuntimeFailure(failure_number::kOverflow);
  return twips;
}

float ScreenX(const CellGeometry& cells, Recordset& row, const PlaceFields& fields) {
  return RequireFinite(cells.ScreenX(RequireCell(row, fields), row[fields.PosX].RequireNumber()));
}

float ScreenY(const CellGeometry& cells, Recordset& row, const PlaceFields& fields) {
  return RequireFinite(cells.ScreenY(RequireCell(row, fields), row[fields.PosY].RequireNumber()));
}

// A place that is missing in the row, or one beyond the grid, is a failure of each statement that
// uses it.
void PlaceEnds(Routine& routine, const CellGeometry& cells, Recordset& row, Control& line) {
  routine.Try([&] { line.Ends.X1 = ScreenX(cells, row, kFrom); });
  routine.Try([&] { line.Ends.Y1 = ScreenY(cells, row, kFrom); });
  routine.Try([&] { line.Ends.X2 = ScreenX(cells, row, kTo); });
  routine.Try([&] { line.Ends.Y2 = ScreenY(cells, row, kTo); });
}

// An icon centred on its point: smaller the more columns are shown, but never below 40 twips.
Control MakeIcon(Routine& routine, int index, const CellGeometry& cells,
                 const ZoomRectangle& visible, Recordset& row, const PlaceFields& fields,
                 std::string picture) {
  const double size = KeptAsFloat(std::max(40.0, 200.0 / visible.Columns()));
  ScreenPoint point;
  routine.Try([&] { point.X = ScreenX(cells, row, fields); });
  routine.Try([&] { point.Y = ScreenY(cells, row, fields); });
  const double half = size / 2.0;
  const TwipRect box{KeptAsFloat(point.X - half), KeptAsFloat(point.Y - half), size, size};
  Control icon = MakePicture(ControlId::MapIcon, index, box, std::move(picture));
  icon.Bordered = true;
  icon.BorderColor = kIconBorder;
  return icon;
}

ConnectedPlaces SystemsOf(Recordset& row, const CellNames& names) {
  const std::string& from = names.Of(RequireCell(row, kFrom));
  return {from, names.Of(RequireCell(row, kTo))};
}

// What the hover box of a jump icon shows: its kind, where it is and where it leads.
JumpEnd DescribeEnd(Universe& universe, const CellNames& names, Recordset& row,
                    const PlaceFields& here, const PlaceFields& there) {
  const auto coords = [&](const PlaceFields& fields) {
    return CoordsToMapCoords(universe.Log, names, CellOf(row, fields),
                             {row[fields.PosX].RequireNumber(), row[fields.PosY].RequireNumber()});
  };
  std::string text = row["Type"].Get().Number() == kJumpHole ? "\r\n  Jumphole" : "\r\n  Jumpgate";
  text += "\r\n  " + coords(here) + " TO";
  text += "\r\n  " + coords(there);
  return {std::move(text)};
}

Control MakeJumpLine(int index, double type, bool inPrint) {
  if (type == kJumpHole) {
    return MakeLine(ControlId::MapLine, index, LineKind::JumpHole, kHoleLine, LineStyle::Dotted);
  }
  return MakeLine(ControlId::MapLine, index, LineKind::JumpGate,
                  inPrint ? kGateLineInPrint : kGateLine);
}

bool IsLineOn(double type, const MapOptions& options) {
  return (type == kJumpHole && options[MapSwitch::JumpholeLines]) ||
         (type == kJumpGate && options[MapSwitch::JumpgateLines]);
}

}  // namespace

void MapLayers::AddJumpConnections(const MapOptions& options) {
  for (Recordset nodes =
           universe_.DB.OpenRecordset(routine_, "SELECT * from JumpNodes ORDER BY Type");
       !nodes.AtEnd(); nodes.MoveNext()) {
    const double type = nodes["Type"].Get().Number();
    if (IsLineOn(type, options)) AddJumpLine(nodes, type);
    if (state_.Zoom.Current().IsZoomed()) AddJumpIcons(nodes, type);
  }
}

void MapLayers::AddJumpLine(Recordset& node, double type) {
  Control line = MakeJumpLine(nextLine_++, type, state_.PrintMode);
  routine_.Try([&] { line.Subject = SystemsOf(node, state_.Names); });
  PlaceEnds(routine_, cells_, node, line);
  objects_.Lines.push_back(std::move(line));
}

void MapLayers::AddJumpIcons(Recordset& node, double type) {
  const std::string picture = type == kJumpHole ? "JumpHole" : "Jumpgate";
  for (const PlaceFields* here : {&kFrom, &kTo}) {
    const PlaceFields& there = here == &kFrom ? kTo : kFrom;
    Control icon =
        MakeIcon(routine_, nextIcon_++, cells_, state_.Zoom.Current(), node, *here, picture);
    icon.Subject = JumpEnd{};
    routine_.Try([&] { icon.Subject = DescribeEnd(universe_, state_.Names, node, *here, there); });
    objects_.Icons.push_back(std::move(icon));
  }
}

void MapLayers::AddTradeLanes() {
  for (Recordset lanes = universe_.DB.OpenRecordset(routine_, "SELECT * from TradeLanes");
       !lanes.AtEnd(); lanes.MoveNext()) {
    Control line = MakeLine(ControlId::MapLine, nextLine_++, LineKind::TradeLane, kLaneLine);
    line.Subject = ConnectedPlaces{lanes["realname"].Get().Text(), lanes["realname2"].Get().Text()};
    PlaceEnds(routine_, cells_, lanes, line);
    objects_.Lines.push_back(std::move(line));
  }
}

void MapLayers::AddObjects() {
  const ZoomRectangle& visible = state_.Zoom.Current();
  for (Recordset objects = universe_.DB.OpenRecordset(
           routine_,
           "SELECT * from DockObjects WHERE mapx >= {} AND mapx <= {} AND mapy >= {} AND "
           "mapy <= {}",
           {visible.X1, visible.X2, visible.Y1, visible.Y2});
       !objects.AtEnd(); objects.MoveNext()) {
    const std::string picture(ObjectPicture(objects["loadout"].Get().Text()));
    Control icon = MakeIcon(routine_, nextIcon_++, cells_, visible, objects, kPlace, picture);
    icon.Subject = DockableObject{objects["nickname"].Get().Text()};
    objects_.Icons.push_back(std::move(icon));
  }
}

}  // namespace orrerix
