// SPDX-License-Identifier: MIT
#pragma once

#include <QGraphicsView>
#include <QWidget>

#include "picture/map_scene.h"

namespace orrerix {

// Shows the hover box of the map in front of the widgets that stand on the map, such as the search
// panel: the scene alone would paint it below them. Mouse events pass through it.
class HoverOverlay : public QWidget {
 public:
  // `scene` must outlive this; it is what `map` shows.
  HoverOverlay(MapScene& scene, QGraphicsView* map);
  ~HoverOverlay() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void Follow();

  MapScene& scene_;
  QGraphicsView* map_;
};

}  // namespace orrerix
