// SPDX-License-Identifier: MIT
#pragma once

#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QObject>
#include <QPointF>
#include <QWheelEvent>
#include <functional>
#include <optional>

#include "forms/map/map_screen.h"
#include "map/grid/zoom_steps.h"

namespace orrerix {

// Wheel, touchpad and middle button on the map, besides the gestures that the map itself has. The
// wheel and a pinch zoom about the pointer; the way back goes through the rectangles that the right
// button goes back to. The middle button drags the map by whole cells.
class MapMoves : public QObject {
 public:
  // Both outlive this. `redraw` is the form's one redraw.
  MapMoves(MapScreen& screen, ErrorLog& log, std::function<void()> redraw);

  // One step about a point of the grid; nothing happens where there is no further one.
  void ZoomIn(GridPoint about);
  void ZoomOut(GridPoint about);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  GridPoint GridPointAt(QPointF position) const;
  bool IsOnMap(QPointF position) const;
  bool Wheel(const QWheelEvent& event);
  bool Pinch(const QNativeGestureEvent& event);
  bool Press(const QMouseEvent& event);
  bool Drag(const QMouseEvent& event);
  GridPoint AnchorAt(QPointF position);
  void Steps(double& sum, double perStep, QPointF position);

  MapScreen& screen_;
  ErrorLog& log_;
  std::function<void()> redraw_;
  // The point that steps at one position are about. Cells are whole: after a step another point of
  // the grid may lie below the pointer.
  struct Anchor {
    QPointF Position;
    GridPoint About;
    ZoomRectangle Shown;  // after the last step
  };
  std::optional<Anchor> anchor_;
  double wheel_ = 0;  // eighths of a degree that make no whole step yet
  double pinch_ = 0;  // magnification, likewise
  struct MiddleDrag {
    QPointF From;  // position of the press
    ZoomRectangle Shown;
    bool HasMoved = false;
  };
  std::optional<MiddleDrag> drag_;
};

}  // namespace orrerix
