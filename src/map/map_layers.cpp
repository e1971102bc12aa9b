// SPDX-License-Identifier: MIT
#include "map/map_layers.h"

#include <cmath>
#include <optional>

#include <fmt/format.h>

#include "derived/jump_objects.h"
#include "map/numeric.h"
#include "map/object_classes.h"

namespace orrerix {
namespace {

constexpr Color kGateLine{0xFFFFFF};
constexpr Color kGateLineInPrint{0x000000};
constexpr Color kHoleLine{0x808080};
constexpr Color kLaneLine{0xFF0000};

// A point of the map as a table's row has it.
struct MapPlace {
  MapCell Cell;
  std::optional<CellFraction> Point;  // nothing if a fraction is Null
};

int CellNumber(const FieldRef& field) {
  return static_cast<int>(field.Get().Number());
}

// `end` is the last digit of the field names, "" where a row has one point only.
MapPlace PlaceOf(Recordset& row, const std::string& end) {
  MapPlace place{{CellNumber(row["mapx" + end]), CellNumber(row["mapy" + end])}, std::nullopt};
  const Value x = row["posx" + end].Get();
  const Value y = row["posy" + end].Get();
  if (!x.IsNull() && !y.IsNull()) place.Point = CellFraction{x.Number(), y.Number()};
  return place;
}

// A place beyond the grid is a failure of each statement that uses it.
void RequireCell(const MapPlace& place) {
  if (!CellNames::Holds(place.Cell)) throw RuntimeFailure(failure_number::kSubscriptOutOfRange);
}

CellFraction RequirePoint(const MapPlace& place) {
  if (!place.Point) throw RuntimeFailure(failure_number::kInvalidUseOfNull);
  return *place.Point;
}

// The scale of a system may put a point further off than a control can stand.
ScreenPoint PointOf(const CellGeometry& cells, const MapPlace& place) {
  RequireCell(place);
  const ScreenPoint point = cells.ScreenPosition(place.Cell, RequirePoint(place));
  if (!std::isfinite(point.X) || !std::isfinite(point.Y)) {
    throw RuntimeFailure(failure_number::kOverflow);
  }
  return point;
}

Control MakeLine(Routine& routine, int index, const CellGeometry& cells, const MapPlace& from,
                 const MapPlace& to) {
  Control line;
  line.Kind = ControlKind::Line;
  line.Name = "Line1";
  line.Index = index;
  routine.Try([&] {
    const ScreenPoint point = PointOf(cells, from);
    line.Ends.X1 = point.X;
    line.Ends.Y1 = point.Y;
  });
  routine.Try([&] {
    const ScreenPoint point = PointOf(cells, to);
    line.Ends.X2 = point.X;
    line.Ends.Y2 = point.Y;
  });
  return line;
}

// An icon centred on its point: smaller the more columns are shown, but never below 40 twips.
Control MakeIcon(Routine& routine, int index, const CellGeometry& cells,
                 const ZoomRectangle& visible, const MapPlace& place, std::string picture) {
  const auto size = static_cast<float>(MAXI(40.0, 200.0 / visible.Columns()));
  ScreenPoint point;
  routine.Try([&] { point = PointOf(cells, place); });
  const double half = size / 2.0;
  const Box box{static_cast<float>(point.X - half), static_cast<float>(point.Y - half), size, size};
  return MakePicture("Image1", index, box, std::move(picture));
}

std::string NameOf(Routine& routine, const CellNames& names, const MapPlace& place) {
  std::string name;
  routine.Try([&] {
    RequireCell(place);
    name = names.Of(place.Cell);
  });
  return name;
}

// What the hover box of a jump icon shows: its kind, where it is and where it leads.
std::string JumpTag(Routine& routine, Universe& universe, const MapState& state, int type,
                    const MapPlace& here, const MapPlace& there) {
  const auto coords = [&](const MapPlace& place) {
    std::string text;
    routine.Try([&] {
      text = CoordsToMapCoords(universe.Log, state.Names, place.Cell, RequirePoint(place));
    });
    return text;
  };
  return fmt::format("\r\n  {}\r\n  {} TO\r\n  {}", type == kJumpHole ? "Jumphole" : "Jumpgate",
                     coords(here), coords(there));
}

bool IsLineOn(int type, const MapOptions& options) {
  return (type == kJumpHole && options[MapSwitch::JumpholeLines]) ||
         (type == kJumpGate && options[MapSwitch::JumpgateLines]);
}

}  // namespace

void AddJumpConnections(Routine& routine, Universe& universe, const MapState& state,
                        const MapOptions& options, const CellGeometry& cells,
                        ElementCounters& counters, JumpLayers& layers) {
  const ZoomRectangle& visible = state.Zoom.Current();
  for (Recordset nodes =
           universe.DB.OpenRecordset(routine, "SELECT * from JumpNodes ORDER BY Type");
       !nodes.AtEnd(); nodes.MoveNext()) {
    const int type = CellNumber(nodes["Type"]);
    const MapPlace from = PlaceOf(nodes, "1");
    const MapPlace to = PlaceOf(nodes, "2");
    if (IsLineOn(type, options)) {
      Control line = MakeLine(routine, counters.Line++, cells, from, to);
      line.Style = static_cast<LineStyle>(type);
      const Color gate = state.PrintMode ? kGateLineInPrint : kGateLine;
      line.BorderColor = type == kJumpHole ? kHoleLine : gate;
      line.Tag = NameOf(routine, state.Names, from) + " <-> " + NameOf(routine, state.Names, to);
      layers.Lines.push_back(std::move(line));
    }
    if (!visible.IsZoomed()) continue;
    const std::string picture = type == kJumpHole ? "JumpHole" : "Jumpgate";
    for (const auto& [here, there] : {std::pair{from, to}, std::pair{to, from}}) {
      Control icon = MakeIcon(routine, counters.Image++, cells, visible, here, picture);
      icon.Tag = JumpTag(routine, universe, state, type, here, there);
      layers.Icons.push_back(std::move(icon));
    }
  }
}

void AddTradeLaneLines(Routine& routine, Universe& universe, const CellGeometry& cells,
                       ElementCounters& counters, ControlList& lines) {
  for (Recordset lanes = universe.DB.OpenRecordset(routine, "SELECT * from TradeLanes");
       !lanes.AtEnd(); lanes.MoveNext()) {
    Control line =
        MakeLine(routine, counters.Line++, cells, PlaceOf(lanes, "1"), PlaceOf(lanes, "2"));
    line.Style = LineStyle::Solid;
    line.BorderColor = kLaneLine;
    line.Tag = lanes["realname"].Get().Text() + " <-> " + lanes["realname2"].Get().Text();
    lines.push_back(std::move(line));
  }
}

void AddObjectIcons(Routine& routine, Universe& universe, const MapState& state,
                    const CellGeometry& cells, ElementCounters& counters, ControlList& icons) {
  const ZoomRectangle& visible = state.Zoom.Current();
  for (Recordset objects = universe.DB.OpenRecordset(
           routine,
           "SELECT * from DockObjects WHERE mapx >= {} AND mapx <= {} AND mapy >= {} AND "
           "mapy <= {}",
           {visible.X1, visible.X2, visible.Y1, visible.Y2});
       !objects.AtEnd(); objects.MoveNext()) {
    const std::string picture(ObjectPicture(objects["loadout"].Get().Text()));
    Control icon =
        MakeIcon(routine, counters.Image++, cells, visible, PlaceOf(objects, ""), picture);
    icon.Tag = objects["nickname"].Get().Text();
    icons.push_back(std::move(icon));
  }
}

}  // namespace orrerix
