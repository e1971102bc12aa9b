// SPDX-License-Identifier: MIT
#include "map/redraw.h"

#include <utility>

#include "map/borders.h"
#include "map/cell_layers.h"
#include "map/map_layers.h"
#include "map/numeric.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

constexpr Color kFrameBack{0x000000};
constexpr Color kFrameBackInPrint{0xFFFFFF};
constexpr Color kPanelBack{0x400000};
constexpr Color kPanelText{0x0000FF};
constexpr int kBorderMargin = 100;
constexpr int kUniverseMargin = 20;

double NotBelowZero(double size) {
  return MAXI(0.0, size);
}

class Redraw {
 public:
  Redraw(Routine& routine, Universe& universe, MapState& state, const MapView& view,
         MapDrawing& drawing)
      : routine_(routine), universe_(universe), state_(state), view_(view), drawing_(drawing) {}

  void Run() {
    PlaceFrame();
    PlacePanel();
    ControlList panel = Panel();
    if (state_.PrintMode) {
      Add(std::move(panel));
    } else {
      panel_ = std::move(panel);
    }
    DrawCells();
    DrawObjects();
    DrawBorder();
  }

  // Stacks the layers above the cells. A cancelled redraw shows what it had come to.
  void Stack() {
    Add(std::move(jumps_.Lines));
    Add(std::move(lanes_));
    Add(std::move(jumps_.Icons));
    Add(std::move(objects_));
    Add(std::move(border_));
    Add(std::move(panel_));
  }

 private:
  const ZoomRectangle& Visible() const { return state_.Zoom.Current(); }

  void Add(ControlList layer) {
    for (Control& control : layer) drawing_.Controls.push_back(std::move(control));
  }

  void PlaceFrame() {
    drawing_.Frame = FrameOn(view_.FormWidth, view_.FormHeight);
    drawing_.FrameColor = state_.PrintMode ? kFrameBackInPrint : kFrameBack;
    drawing_.Zoomed = Visible().IsZoomed();
    drawing_.Cells = CellGeometry(drawing_.Frame, Visible());
    const int cell = drawing_.Cells.CellSize();
    drawing_.FreeRight =
        WholeTwips(drawing_.Frame.Width - Visible().Columns() * cell - kBorderMargin);
    drawing_.FreeBelow = WholeTwips(drawing_.Frame.Height - Visible().Rows() * cell);
  }

  void PlacePanel() {
    const Box& frame = drawing_.Frame;
    if (drawing_.FreeRight > drawing_.FreeBelow) {
      drawing_.Panel = PanelPlace::Right;
      const int left = WholeTwips(frame.Width - drawing_.FreeRight);
      drawing_.PanelBox = {static_cast<double>(left), 0, NotBelowZero(frame.Width - left),
                           frame.Height};
    } else if (!state_.PrintMode) {
      drawing_.Panel = PanelPlace::Below;
      const int top = WholeTwips(frame.Height - drawing_.FreeBelow);
      drawing_.PanelBox = {0, static_cast<double>(top), frame.Width,
                           NotBelowZero(frame.Height - top)};
    }
  }

  ControlList Panel() {
    Control panel = MakeFrame("MenuFrame", 0, drawing_.PanelBox, kPanelBack);
    panel.ForeColor = kPanelText;
    SidePanel content;
    if (drawing_.Panel == PanelPlace::Right) {
      content = LayOutPanelRight(drawing_.PanelBox, view_.Panel, view_.Options, state_.OptionsOpen,
                                 view_.Measure);
    } else if (drawing_.Panel == PanelPlace::Below) {
      content = LayOutPanelBelow(drawing_.PanelBox, view_.Panel);
    }
    panel.Children = std::move(content.Controls);
    drawing_.NewsScrolls = content.NewsScrolls;
    return {std::move(panel)};
  }

  void DrawCells() {
    const CellGeometry& cells = drawing_.Cells;
    Add(BackgroundTiles(state_, drawing_.Frame));
    if (!drawing_.Zoomed && !state_.PrintMode) {
      Add({PaintedUniverse(drawing_.Frame, view_.StarMapPicture)});
    }
    if (view_.Options[MapSwitch::SystemBackgrounds] && !state_.PrintMode) {
      Add(SystemPictures(cells));
    }
    if (view_.Options[MapSwitch::EmptyBackgrounds] && !state_.PrintMode) {
      Add(Fillers(state_.Names, cells));
    }
    if (view_.Options[MapSwitch::SystemNames]) Add(SystemLabels(state_, cells, view_.Measure));
  }

  void DrawObjects() {
    ElementCounters counters;
    AddJumpConnections(routine_, universe_, state_, view_.Options, drawing_.Cells, counters,
                       jumps_);
    if (view_.Options[MapSwitch::TradelaneLines]) {
      AddTradeLaneLines(routine_, universe_, drawing_.Cells, counters, lanes_);
    }
    if (drawing_.Zoomed) {
      AddObjectIcons(routine_, universe_, state_, drawing_.Cells, counters, objects_);
    }
  }

  // Round the shown cells, or round the painted universe.
  void DrawBorder() {
    if (state_.PrintMode) return;
    int right = 0;
    int bottom = 0;
    if (drawing_.Zoomed) {
      right = Visible().Columns() * drawing_.Cells.CellSize() + kBorderMargin;
      bottom = Visible().Rows() * drawing_.Cells.CellSize();
    } else {
      const Box universe = PaintedUniverse(drawing_.Frame, {}).Place;
      right = WholeTwips(universe.Width + kUniverseMargin);
      bottom = WholeTwips(universe.Height);
    }
    border_ = SetRahmen(BorderSet::Map, 0, 0, right, bottom);
  }

  Routine& routine_;
  Universe& universe_;
  MapState& state_;
  const MapView& view_;
  MapDrawing& drawing_;
  JumpLayers jumps_;
  ControlList lanes_;
  ControlList objects_;
  ControlList border_;
  ControlList panel_;
};

}  // namespace

MapDrawing DrawMap(Universe& universe, MapState& state, const MapView& view) {
  MapDrawing drawing;
  Routine routine(universe.Log, "OrrerixMain.Form_Resize");
  Redraw redraw(routine, universe, state, view, drawing);
  routine.Run([&] { redraw.Run(); });
  redraw.Stack();
  return drawing;
}

}  // namespace orrerix
