// SPDX-License-Identifier: MIT
#include "map/redraw.h"

#include <algorithm>
#include <array>
#include <utility>

#include "map/grid/numeric.h"
#include "map/layers/borders.h"
#include "map/layers/cell_layers.h"
#include "map/layers/map_layers.h"
#include "shell/routine.h"

namespace orrerix {
namespace {

constexpr Color kFrameBack{0x000000};
constexpr Color kFrameBackInPrint{0xFFFFFF};
constexpr Color kPanelBack{0x400000};
constexpr Color kPanelText{0x0000FF};
constexpr int kBorderMargin = 100;
constexpr int kUniverseMargin = 20;

// Where the panel stands when the map first shows the whole grid. A form without room at its right
// is treated as if it had some.
TwipRect FirstPanelPlace(const TwipRect& frame) {
  const ZoomRectangle grid;
  const double cells = grid.Columns() * CellGeometry(frame, grid).CellSize();
  const double width =
      std::min(frame.Width, std::max(kNarrowestPanel, frame.Width - cells - kBorderMargin));
  return {frame.Width - width, 0, width, frame.Height};
}

class Redraw {
 public:
  Redraw(Routine& routine, Universe& universe, MapState& state, const MapView& view,
         MapDrawing& drawing)
      : routine_(routine),
        universe_(universe),
        state_(state),
        view_(view),
        drawing_(drawing),
        layers_(routine, universe, state, drawing.Cells) {}

  void Run() {
    ZoomCalc();
    PlacePanel();
    if (drawing_.Zoomed) SurroundCells();
    routine_.Try([&] { LayOutPanel(); });
    DrawObjects();
    state_.Objects = {};  // what a complete redraw has not placed is gone
    state_.BorderShown = !state_.PrintMode;
  }

  // Stacks all layers. Objects of the last redraw that a cancelled one has not reached stay.
  void Stack() {
    MapObjects placed = layers_.Take();
    state_.Objects = {Over(std::move(state_.Objects.Lines), std::move(placed.Lines)),
                      Over(std::move(state_.Objects.Icons), std::move(placed.Icons))};
    const std::array lists = {&tiles_, &painted_, &pictures_, &fillers_, &labels_};
    std::size_t count =
        state_.Objects.Lines.size() + state_.Objects.Icons.size() + border_.size() + panel_.size();
    for (const ControlList* layer : lists) count += layer->size();
    drawing_.Controls.reserve(count);
    if (state_.PrintMode) Append(drawing_.Controls, std::move(panel_));
    for (ControlList* layer : lists) Append(drawing_.Controls, std::move(*layer));
    Append(drawing_.Controls, state_.Objects.Lines);
    Append(drawing_.Controls, state_.Objects.Icons);
    if (state_.BorderShown && !state_.PrintMode) Append(drawing_.Controls, std::move(border_));
    if (!state_.PrintMode) Append(drawing_.Controls, std::move(panel_));
  }

 private:
  const ZoomRectangle& Visible() const { return state_.Zoom.Current(); }

  // The elements placed now in front of those from before that they do not replace.
  static ControlList Over(ControlList before, ControlList placed) {
    const int last = placed.empty() ? 0 : placed.back().Index.value_or(0);
    std::erase_if(before, [&](const Control& control) { return control.Index <= last; });
    Append(before, std::move(placed));
    return before;
  }

  // Frame, cells, and all layers that follow the cells.
  void ZoomCalc() {
    Routine routine(universe_.Log, "OrrerixMain.ZoomCalc");
    routine.Run([&] {
      drawing_.Zoomed = Visible().IsZoomed();
      drawing_.PrintMode = state_.PrintMode;
      drawing_.FrameColor = state_.PrintMode ? kFrameBackInPrint : kFrameBack;
      drawing_.Frame = FrameOn(view_.FormWidth, view_.FormHeight);
      drawing_.Cells = CellGeometry(drawing_.Frame, Visible());
      const CellGeometry& cells = drawing_.Cells;
      routine.Try([&] { tiles_ = BackgroundTiles(state_, drawing_.Frame); });
      if (!drawing_.Zoomed && !state_.PrintMode) routine.Try([&] { ShowPaintedUniverse(); });
      if (view_.Options[MapSwitch::SystemNames]) {
        labels_ = SystemLabels(routine, state_, cells, view_.Measure);
      }
      if (state_.PrintMode) return;
      if (view_.Options[MapSwitch::SystemBackgrounds]) {
        routine.Try([&] { pictures_ = SystemPictures(cells); });
      }
      if (view_.Options[MapSwitch::EmptyBackgrounds]) {
        routine.Try([&] { fillers_ = Fillers(state_.Names, cells); });
      }
    });
  }

  void ShowPaintedUniverse() {
    painted_ = {PaintedUniverse(drawing_.Frame, view_.StarMapFile)};
    const TwipRect& universe = painted_.front().Place;
    border_ = LayOutBorder(universe_.Log, BorderSet::Map, universe.Width + kUniverseMargin,
                           universe.Height);
  }

  void SurroundCells() {
    const double cell = drawing_.Cells.CellSize();
    border_ = LayOutBorder(universe_.Log, BorderSet::Map,
                           Visible().Columns() * cell + kBorderMargin, Visible().Rows() * cell);
  }

  void PlacePanel() {
    const TwipRect& frame = drawing_.Frame;
    const int cell = drawing_.Cells.CellSize();
    drawing_.FreeRight = WholeTwips(frame.Width - Visible().Columns() * cell - kBorderMargin);
    drawing_.FreeBelow = WholeTwips(frame.Height - Visible().Rows() * cell);
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

  void LayOutPanel() {
    const PanelView view{universe_.Log,
                         view_.Panel,
                         view_.Options,
                         state_.OptionsOpen,
                         state_.PrintMode,
                         view_.Measure,
                         state_.InfoBackgroundHeight,
                         view_.Compact && !state_.PrintMode};
    Control panel = MakeFrame(ControlId::PanelFrame, 0, drawing_.PanelBox, kPanelBack);
    panel.ForeColor = kPanelText;
    SidePanel content;
    if (drawing_.Panel == PanelPlace::Right) {
      content = LayOutPanelRight(drawing_.PanelBox, view);
      panel.ClipsChildren = !content.Overhangs;
      // A print has a form of its own; the screen's panel does not move because of it.
      if (!state_.PrintMode && !content.Overhangs) {
        state_.PanelAtRight = drawing_.PanelBox;
        state_.InfoBackgroundHeight = content.BackgroundHeight;
      }
    } else if (drawing_.Panel == PanelPlace::Below) {
      content = LayOutPanelBelow(
          drawing_.PanelBox, state_.PanelAtRight.value_or(FirstPanelPlace(drawing_.Frame)), view);
      panel.ClipsChildren = !content.Overhangs;
    }
    panel.Children = std::move(content.Controls);
    drawing_.NewsScrolls = content.NewsScrolls;
    panel_ = {std::move(panel)};
  }

  void DrawObjects() {
    layers_.AddJumpConnections(view_.Options);
    if (view_.Options[MapSwitch::TradelaneLines]) {
      layers_.AddTradeLanes();
    }
    if (drawing_.Zoomed) {
      layers_.AddObjects();
    }
  }

  Routine& routine_;
  Universe& universe_;
  MapState& state_;
  const MapView& view_;
  MapDrawing& drawing_;
  ControlList tiles_;
  ControlList painted_;
  ControlList pictures_;
  ControlList fillers_;
  ControlList labels_;
  MapLayers layers_;
  ControlList border_;
  ControlList panel_;
};

}  // namespace

void UnloadObjects(MapState& state) {
  state.Objects = {};
}

MapDrawing DrawMap(Universe& universe, MapState& state, const MapView& view) {
  MapDrawing drawing;
  Routine routine(universe.Log, "OrrerixMain.Form_Resize");
  Redraw redraw(routine, universe, state, view, drawing);
  routine.Run([&] { redraw.Run(); });
  redraw.Stack();
  return drawing;
}

}  // namespace orrerix
