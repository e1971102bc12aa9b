// SPDX-License-Identifier: MIT
// One redraw of the map: from the form's size and the visible rectangle to a drawing list.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "import/universe.h"
#include "map/drawing_list.h"
#include "map/grid/cell_geometry.h"
#include "map/grid/map_coords.h"
#include "map/grid/text_measure.h"
#include "map/grid/zoom.h"
#include "map/panel/map_options.h"
#include "map/panel/side_panel.h"

namespace orrerix {

// A background tile. Tiles are laid when a zoomed map is drawn and stay from then on.
struct MapTile {
  int Left = 0;
  int Top = 0;
  bool Visible = false;
};

// The lines and icons of the map, back to front.
struct MapObjects {
  ControlList Lines;
  ControlList Icons;
};

// What the map remembers from one redraw to the next.
struct MapState {
  ZoomStack Zoom;
  CellNames Names;
  std::vector<MapTile> Tiles;
  MapObjects Objects;        // as the last redraw left them
  bool BorderShown = false;  // the map's border, by the last redraw that got that far
  // Of the panel on the screen when it was last at the right: its place, and the height of the
  // info box's background, twips.
  std::optional<TwipRect> PanelAtRight;
  std::optional<double> InfoBackgroundHeight;
  bool PrintMode = false;
  bool OptionsOpen = false;
};

// What one redraw depends on besides.
struct MapView {
  int FormWidth = 0;  // outer size of the form, twips
  int FormHeight = 0;
  MapOptions Options;
  const TextMeasure& Measure;
  const PanelContent& Panel;
  std::optional<std::string> StarMapFile = std::nullopt;  // in the place of the painted universe
  bool Compact = false;  // a window so narrow that the panel has to make do; see there
};

enum class PanelPlace { None, Right, Below };

struct MapDrawing {
  TwipRect Frame;
  Color FrameColor;
  bool PrintMode = false;  // on white paper
  bool Zoomed = false;
  CellGeometry Cells;
  int FreeRight = 0;  // twips beside the shown cells
  int FreeBelow = 0;
  PanelPlace Panel = PanelPlace::None;
  TwipRect PanelBox;
  bool NewsScrolls = false;
  ControlList Controls;  // visible children of the frame, back to front
};

// Drops the lines and icons of the last redraw. Called before a redraw whose objects differ.
void UnloadObjects(MapState& state);

// Draws the map as it stands. The database needs the tables of the derived stages; one without rows
// gives a map without lines and icons. A redraw that the user cancels keeps the lines, icons and
// border that the last one showed and that it has not placed itself.
MapDrawing DrawMap(Universe& universe, MapState& state, const MapView& view);

}  // namespace orrerix
