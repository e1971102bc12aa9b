// SPDX-License-Identifier: MIT
#pragma once

#include <QGraphicsView>

#include "forms/map_mouse.h"
#include "picture/map_scene.h"

namespace orrerix {

// The map's clipping frame on the main form: shows a scene pixel for pixel and tells the mouse's
// doings in twips.
class SysmapFrame : public QGraphicsView {
 public:
  SysmapFrame(MapScene& scene, QWidget* parent);

  // Not owned; null for nobody.
  void SetMouse(MapMouse* mouse) { mouse_ = mouse; }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  MapPointer PointerOf(const QMouseEvent& event, PointerButton button) const;

  MapScene& scene_;
  MapMouse* mouse_ = nullptr;
};

}  // namespace orrerix
