// SPDX-License-Identifier: MIT
#include "map/layers/cell_layers.h"

#include <cstddef>

#include "map/grid/numeric.h"
#include "map/layers/system_pictures.h"

namespace orrerix {
namespace {

constexpr int kTileSize = 1920;
constexpr int kLargestFont = 10;
constexpr Color kLabelText{0x00CCCC};
constexpr Color kLabelBack{0x400000};
constexpr Color kPrintText{0x000000};

// Puts a tile behind the others, or moves the one that stands there.
void LayTile(MapState& state, std::size_t index, int left, int top) {
  if (state.Tiles.size() <= index) state.Tiles.resize(index + 1);
  state.Tiles[index] = {left, top, !state.PrintMode};
}

// Rows of tiles from the top left corner on, one tile further than the frame reaches.
void LayTiles(MapState& state, const TwipRect& frame) {
  std::size_t index = 0;
  while (state.Tiles[index].Top < frame.Height) {
    while (state.Tiles[index].Left + kTileSize < frame.Width) {
      const MapTile before = state.Tiles[index];
      LayTile(state, ++index, before.Left + kTileSize, before.Top);
    }
    const int top = state.Tiles[index].Top + kTileSize;
    LayTile(state, ++index, 0, top);
  }
}

int LabelFont(const std::string& name, int cellSize, const TextMeasure& measure) {
  int size = kLargestFont;
  while (size > 1 && measure.TextWidth(name, size) > cellSize) --size;
  return size;
}

}  // namespace

ControlList BackgroundTiles(MapState& state, const TwipRect& frame) {
  if (state.Tiles.empty()) state.Tiles.resize(1);
  state.Tiles[0] = {0, 0, true};
  if (state.Zoom.Current().IsZoomed()) LayTiles(state, frame);
  ControlList tiles;
  tiles.reserve(state.Tiles.size());
  for (std::size_t i = 0; i < state.Tiles.size(); ++i) {
    MapTile& tile = state.Tiles[i];
    if (state.PrintMode) tile.Visible = false;
    if (!tile.Visible) continue;
    tiles.push_back(MakePicture(
        ControlId::BackgroundTile, static_cast<int>(i),
        {static_cast<double>(tile.Left), static_cast<double>(tile.Top), kTileSize, kTileSize}));
  }
  return tiles;
}

Control PaintedUniverse(const TwipRect& frame, const std::optional<std::string>& file) {
  const double height = KeptAsFloat(frame.Height);
  const double width = KeptAsFloat(frame.Height / MapMaxY * MapMaxX);
  const TwipRect place{0, 0, width, height};
  return file ? MakePicture(ControlId::PaintedUniverse, std::nullopt, place, *file)
              : MakePicture(ControlId::PaintedUniverse, std::nullopt, place);
}

ControlList SystemPictures(const CellGeometry& cells) {
  ControlList pictures;
  pictures.reserve(kSystemPictures);
  for (int i = 0; i < kSystemPictures; ++i) {
    const MapCell cell = CellOfTag(SystemPictureTag(i));
    pictures.push_back(MakePicture(ControlId::SystemPicture, i, cells.CellBox(cell.X, cell.Y)));
  }
  return pictures;
}

ControlList Fillers(const CellNames& names, const CellGeometry& cells) {
  ControlList fillers;
  fillers.reserve(std::size_t{MapMaxX + 1} * (MapMaxY + 1));
  int counter = 1;
  for (int x = 0; x <= MapMaxX; ++x) {
    for (int y = 0; y <= MapMaxY; ++y) {
      if (!names.Of({x, y}).empty()) continue;
      fillers.push_back(MakePicture(ControlId::EmptyCell, counter++, cells.CellBox(x, y)));
    }
  }
  return fillers;
}

ControlList SystemLabels(Routine& routine, const MapState& state, const CellGeometry& cells,
                         const TextMeasure& measure) {
  ControlList labels;
  const ZoomRectangle& visible = state.Zoom.Current();
  for (int y = visible.Y1; y <= visible.Y2; ++y) {
    for (int x = visible.X1; x <= visible.X2; ++x) {
      const std::string& name = state.Names.Of({x, y});
      if (name.empty()) continue;
      Control label = MakeLabel(ControlId::SystemLabel, static_cast<int>(CellNames::Index({x, y})),
                                cells.CellBox(x, y), name);
      label.FontSize = kLargestFont;
      routine.Try([&] { label.FontSize = LabelFont(name, cells.CellSize(), measure); });
      label.ForeColor = state.PrintMode ? kPrintText : kLabelText;
      label.BackColor = kLabelBack;
      labels.push_back(std::move(label));
    }
  }
  return labels;
}

}  // namespace orrerix
