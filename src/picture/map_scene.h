// SPDX-License-Identifier: MIT
#pragma once

#include <QGraphicsScene>

#include "map/redraw.h"
#include "picture/picture_store.h"

namespace orrerix {

// The map frame of a drawing list, in logical pixels from its top left corner. Views, printer and
// picture files render it.
class MapScene : public QGraphicsScene {
 public:
  explicit MapScene(PictureStore& pictures, QObject* parent = nullptr);
  ~MapScene() override;

  // Shows a new list in the place of the one before.
  void Show(MapDrawing drawing);

  const MapDrawing& Drawing() const { return drawing_; }

  // The topmost control at a point that is not a line; null on the bare frame.
  const Control* ControlAt(QPointF point) const;

 private:
  QRectF OpenPart() const;

  PictureStore& pictures_;
  MapDrawing drawing_;
};

}  // namespace orrerix
