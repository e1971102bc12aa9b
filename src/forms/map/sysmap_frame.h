// SPDX-License-Identifier: MIT
#pragma once

#include "forms/map/map_keys.h"
#include "forms/map/map_mouse.h"
#include "picture/map_scene.h"
#include "picture/map_scene_view.h"

namespace orrerix {

// The map's clipping frame on the main form: shows a scene pixel for pixel and reports
// mouse events in twips. While a button is down the mouse is followed wherever it goes.
class SysmapFrame : public MapSceneView {
 public:
  SysmapFrame(MapScene& scene, QWidget* parent);

  // Not owned; null for nobody.
  void SetMouse(MapMouse* mouse) { mouse_ = mouse; }
  void SetKeys(MapKeys* keys) { keys_ = keys; }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  MapPointer PointerOf(const QMouseEvent& event, PointerButton button) const;

  MapScene& scene_;
  MapMouse* mouse_ = nullptr;
  MapKeys* keys_ = nullptr;
};

}  // namespace orrerix
