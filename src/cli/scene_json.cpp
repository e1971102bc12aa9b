// SPDX-License-Identifier: MIT
#include "cli/scene_json.h"

#include <cmath>

namespace orrerix {
namespace {

using Json = nlohmann::ordered_json;

// Whole numbers are written as such.
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

void AddPlace(Json& json, const Box& place) {
  json["Left"] = Number(place.Left);
  json["Top"] = Number(place.Top);
  json["Width"] = Number(place.Width);
  json["Height"] = Number(place.Height);
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
  json["control"] = control.Name;
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
  if (control.Tag) json["Tag"] = *control.Tag;
  return json;
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
