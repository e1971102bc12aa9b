// SPDX-License-Identifier: MIT
#include "cli/scene_json.h"

#include <cmath>
#include <optional>
#include <string>

#include <fmt/format.h>

#include "db/values/number_text.h"
#include "map/layers/system_pictures.h"

namespace orrerix {
namespace {

using Json = nlohmann::ordered_json;

// Whole numbers are written without a fraction.
Json Number(double number) {
  constexpr double largestExact = 9007199254740992.0;
  if (number == std::floor(number) && std::abs(number) < largestExact) {
    return static_cast<std::int64_t>(number);
  }
  return number;
}

void AddLine(Json& json, const Control& line) {
  json["X1"] = Number(line.Ends.X1);
  json["Y1"] = Number(line.Ends.Y1);
  json["X2"] = Number(line.Ends.X2);
  json["Y2"] = Number(line.Ends.Y2);
  json["BorderStyle"] = static_cast<int>(line.Style);
  json["BorderColor"] = line.BorderColor.Text();
}

void AddPlace(Json& json, const TwipRect& place) {
  json["Left"] = Number(place.Left);
  json["Top"] = Number(place.Top);
  json["Width"] = Number(place.Width);
  json["Height"] = Number(place.Height);
}

// What the command line calls the tag of a control.
std::optional<std::string> TagOf(const Control& control) {
  switch (control.Id) {
    case ControlId::MapLine: {
      const auto* ends = std::get_if<ConnectedPlaces>(&control.Subject);
      return ends == nullptr ? std::string() : ends->From + " <-> " + ends->To;
    }
    case ControlId::MapIcon:
      return IconText(control);
    case ControlId::SystemPicture:
      return std::string(SystemPictureTag(control.Index.value_or(0)));
    case ControlId::BoxShape:
      if (const auto* icon = std::get_if<HoveredIcon>(&control.Subject)) {
        return fmt::format("{},{}", icon->Index, NumberText(icon->Width));
      }
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

Control PriceControl(ControlId id, int index, const PriceLabel& label) {
  Control control = MakeLabel(id, index, label.Place, label.Caption);
  control.FontSize = label.FontSize;
  control.ForeColor = label.ForeColor;
  control.BackColor = label.BackColor;
  return control;
}

const char* PanelName(PanelPlace place) {
  switch (place) {
    case PanelPlace::Right:
      return "right";
    case PanelPlace::Below:
      return "below";
    case PanelPlace::None:
      break;
  }
  return "none";
}

}  // namespace

Json ControlJson(const Control& control) {
  Json json;
  json["control"] = PrintedName(control.Id);
  json["index"] = control.Index ? Json(*control.Index) : Json(nullptr);
  if (control.Kind == ControlKind::Line) {
    AddLine(json, control);
  } else {
    AddPlace(json, control.Place);
  }
  if (control.Caption) json["Caption"] = *control.Caption;
  if (control.FontSize) json["FontSize"] = *control.FontSize;
  if (control.ForeColor) json["ForeColor"] = control.ForeColor->Text();
  if (control.BackColor) json["BackColor"] = control.BackColor->Text();
  if (control.Picture) json["Picture"] = *control.Picture;
  if (const auto tag = TagOf(control)) json["Tag"] = *tag;
  return json;
}

Json PriceTableJson(const PriceTable& table) {
  Json json = Json::array();
  json.push_back(ControlJson(PriceControl(ControlId::PriceHead, table.Group, table.Head)));
  for (const PriceRow& row : table.Rows) {
    json.push_back(ControlJson(PriceControl(ControlId::PriceName, row.Number, row.Name)));
    json.back()["Tag"] = row.Good;
    json.push_back(ControlJson(PriceControl(ControlId::Price, row.Number, row.Price)));
    json.push_back(
        ControlJson(PriceControl(ControlId::PriceDifference, row.Number, row.Difference)));
  }
  return json;
}

void PrintControl(const Control& control) {
  const std::string index = control.Index ? fmt::format("({})", *control.Index) : "";
  const std::string_view name = PrintedName(control.Id);
  if (control.Kind == ControlKind::Line) {
    fmt::print("{}{} {},{} - {},{} {}\n", name, index, control.Ends.X1, control.Ends.Y1,
               control.Ends.X2, control.Ends.Y2, TagOf(control).value_or(""));
  } else {
    fmt::print("{}{} {},{} {}x{} {}\n", name, index, control.Place.Left, control.Place.Top,
               control.Place.Width, control.Place.Height, control.Caption.value_or(""));
  }
}

void PrintPriceTable(const PriceTable& table) {
  PrintControl(PriceControl(ControlId::PriceHead, table.Group, table.Head));
  for (const PriceRow& row : table.Rows) {
    PrintControl(PriceControl(ControlId::PriceName, row.Number, row.Name));
    PrintControl(PriceControl(ControlId::Price, row.Number, row.Price));
    PrintControl(PriceControl(ControlId::PriceDifference, row.Number, row.Difference));
  }
}

Json SceneJson(const Scene& scene) {
  const MapDrawing& drawing = scene.Drawing;
  const ZoomRectangle& zoom = scene.Visible;
  Json json;
  json["form"] = {{"Width", scene.Form.Width}, {"Height", scene.Form.Height}};
  json["zoom"] = {zoom.X1, zoom.Y1, zoom.X2, zoom.Y2};
  json["depth"] = scene.Depth;
  json["zoomed"] = drawing.Zoomed;
  AddPlace(json["frame"], drawing.Frame);
  json["frame"]["BackColor"] = drawing.FrameColor.Text();
  json["cell"] = {{"Width", drawing.Cells.CellSize()}, {"Height", drawing.Cells.CellSize()}};
  json["FreeRight"] = drawing.FreeRight;
  json["FreeBelow"] = drawing.FreeBelow;
  json["panel"] = PanelName(drawing.Panel);
  json["controls"] = Json::array();
  for (const Control& control : drawing.Controls) json["controls"].push_back(ControlJson(control));
  return json;
}

}  // namespace orrerix
