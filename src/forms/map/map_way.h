// SPDX-License-Identifier: MIT
// A way that was searched for, drawn over the map.
#pragma once

#include <QGraphicsView>
#include <QWidget>
#include <vector>

#include "map/grid/map_places.h"
#include "map/redraw.h"
#include "routes/fastest_way.h"

namespace orrerix {

// A leg of a way between two places of the map. Launches and docks are the stops of a way.
struct MapWayLeg {
  LegKind Kind = LegKind::Fly;
  MapPlace From;
  MapPlace To;
};

// A way over the map, in front of it and below all that stands on it: a line with arrows for each
// leg, a disc at each stop. It is printed with the map. Mouse events pass through.
class MapWay : public QWidget {
 public:
  // Belongs to the frame.
  explicit MapWay(QGraphicsView& frame);

  // Shows a way until it is hidden.
  void Show(std::vector<MapWayLeg> legs);
  void Hide() { Show({}); }
  bool IsShown() const { return !legs_.empty(); }

  // Puts it where the cells of a drawing are.
  void Follow(const MapDrawing& drawing);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPointF PointOf(const MapPlace& place) const;
  void DrawLeg(QPainter& painter, const MapWayLeg& leg) const;
  void DrawStop(QPainter& painter, const MapPlace& place) const;

  std::vector<MapWayLeg> legs_;
  MapDrawing drawing_;
};

}  // namespace orrerix
