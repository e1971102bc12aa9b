// SPDX-License-Identifier: MIT
#include "picture/map_scene.h"

#include <utility>

#include "picture/control_items.h"
#include "picture/twips.h"

namespace orrerix {

MapScene::MapScene(PictureStore& pictures, QObject* parent)
    : QGraphicsScene(parent), pictures_(pictures) {
  // All items change at once and most are seen: an index would cost more than it saves.
  setItemIndexMethod(NoIndex);
}

MapScene::~MapScene() {
  // The items refer to the drawing, which goes before the scene's own part does.
  clear();
}

// What of the frame the panel leaves open. A panel that is not in front covers nothing.
QRectF MapScene::OpenPart() const {
  QRectF open = sceneRect();
  const ControlList& controls = drawing_.Controls;
  if (controls.empty() || controls.back().Kind != ControlKind::Frame) return open;
  const QRectF panel = Pixels(drawing_.PanelBox);
  if (drawing_.Panel == PanelPlace::Right) open.setRight(panel.left());
  if (drawing_.Panel == PanelPlace::Below) open.setBottom(panel.top());
  return open;
}

void MapScene::Show(MapDrawing drawing) {
  clear();
  drawing_ = std::move(drawing);
  setSceneRect(0, 0, Pixels(drawing_.Frame.Width), Pixels(drawing_.Frame.Height));
  setBackgroundBrush(ToQColor(drawing_.FrameColor));
  const QRectF open = OpenPart();
  for (const Control& control : drawing_.Controls) {
    addItem(MakeControlItem(control, pictures_, open, nullptr));
  }
}

const Control* MapScene::ControlAt(QPointF point) const {
  const QList<QGraphicsItem*> under = items(point, Qt::IntersectsItemShape, Qt::DescendingOrder);
  return under.isEmpty() ? nullptr : &ControlItem::Of(*under.front());
}

}  // namespace orrerix
