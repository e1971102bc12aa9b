// SPDX-License-Identifier: MIT
#pragma once

#include <QGraphicsView>
#include <QWidget>
#include <vector>

#include "map/redraw.h"

namespace orrerix {

// Outlines around cells of the map, in front of it. Mouse events pass through.
class MapMarks : public QWidget {
 public:
  // Belongs to the frame's viewport.
  explicit MapMarks(QAbstractScrollArea& frame);

  void Mark(std::vector<MapCell> cells);

  // Puts them where the cells of a drawing are; none is shown in print.
  void Follow(const MapDrawing& drawing);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<MapCell> cells_;
  MapDrawing drawing_;
};

}  // namespace orrerix
