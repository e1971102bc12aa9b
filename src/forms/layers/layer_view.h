// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <memory>
#include <vector>

#include "map/redraw.h"
#include "picture/twips.h"
#include "shell/text_id.h"
#include "space/layers.h"
#include "space/space.h"

namespace orrerix {

// All that the layers of one drawing of the map depend on. Places are logical pixels on the frame.
struct LayerView {
  std::shared_ptr<const Space> Shown;  // null until it has been read
  LayerChoice Layers;
  Language Spoken = Language::English;
  bool OnPaper = false;
  CellGeometry Cells;
  ZoomRectangle Visible;
  QRectF Open;                // what the panel leaves of the map
  std::vector<QRectF> Icons;  // of the map itself
  bool operator==(const LayerView&) const = default;

  bool IsEmpty() const { return Shown == nullptr || Layers.Empty(); }
  bool IsOneSystem() const { return Visible.Columns() == 1 && Visible.Rows() == 1; }
  bool Shows(MapCell cell) const { return Visible.Holds(cell.X, cell.Y); }
  double CellSize() const { return Pixels(Cells.CellSize()); }

  QPointF PointOf(MapCell cell, CellFraction place) const {
    const QPointF corner(Pixels(Cells.CellLeft(cell.X)), Pixels(Cells.CellTop(cell.Y)));
    return corner + QPointF(place.X, place.Y) * CellSize();
  }
  QRectF BoxOf(MapCell cell) const { return Pixels(Cells.CellBox(cell.X, cell.Y)); }

  // The cells that are shown, without what the panel covers.
  QRectF Area() const {
    const QRectF first = BoxOf({Visible.X1, Visible.Y1});
    const QRectF last = BoxOf({Visible.X2, Visible.Y2});
    return first.united(last).intersected(Open);
  }
};

}  // namespace orrerix
