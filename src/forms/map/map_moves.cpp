// SPDX-License-Identifier: MIT
#include "forms/map/map_moves.h"

#include <cmath>

#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr double kWheelStep = 120;   // what a notch of a wheel turns
constexpr double kPinchStep = 0.25;  // of magnification

}  // namespace

MapMoves::MapMoves(MapScreen& screen, ErrorLog& log, std::function<void()> redraw)
    : screen_(screen), log_(log), redraw_(std::move(redraw)) {
  screen_.Frame().viewport()->installEventFilter(this);
}

void MapMoves::ZoomIn(GridPoint about) {
  ZoomStack& zoom = screen_.State().Zoom;
  const ZoomRectangle next = ZoomedIn(zoom.Current(), about);
  if (next == zoom.Current()) return;
  zoom.PushZoomStack(log_, next);
  redraw_();
}

// The rectangle before the current one is the natural way out, if it is larger.
void MapMoves::ZoomOut(GridPoint about) {
  ZoomStack& zoom = screen_.State().Zoom;
  const ZoomRectangle shown = zoom.Current();
  ZoomStack before = zoom;
  before.PopZoomStack(log_);
  const ZoomRectangle& last = before.Current();
  const bool isAround = last.Holds(shown.X1, shown.Y1) && last.Holds(shown.X2, shown.Y2);
  if (isAround && !(last == shown)) {
    zoom = before;
  } else {
    const ZoomRectangle next = ZoomedOut(shown, about);
    if (next == shown) return;
    next.IsZoomed() ? zoom.Replace(next) : zoom.Reset();
  }
  redraw_();
}

GridPoint MapMoves::GridPointAt(QPointF position) const {
  const QPointF point = screen_.Frame().viewportTransform().inverted().map(position);
  const double cell = Pixels(screen_.Drawing().Cells.CellSize());
  const ZoomRectangle& shown = screen_.State().Zoom.Current();
  if (cell <= 0) return {};
  return {shown.X1 + point.x() / cell, shown.Y1 + point.y() / cell};
}

bool MapMoves::IsOnMap(QPointF position) const {
  const QPointF point = screen_.Frame().viewportTransform().inverted().map(position);
  return !screen_.Scene().HitAt(point).OnPanel;
}

GridPoint MapMoves::AnchorAt(QPointF position) {
  const ZoomRectangle& shown = screen_.State().Zoom.Current();
  if (!anchor_ || anchor_->Position != position || !(anchor_->Shown == shown)) {
    anchor_ = Anchor{position, GridPointAt(position), shown};
  }
  return anchor_->About;
}

// Runs the whole steps of a sum.
void MapMoves::Steps(double& sum, double perStep, QPointF position) {
  const GridPoint about = AnchorAt(position);
  for (; sum >= perStep; sum -= perStep) ZoomIn(about);
  for (; sum <= -perStep; sum += perStep) ZoomOut(about);
  anchor_->Shown = screen_.State().Zoom.Current();
}

// While a button is down a drag goes on, whose ends belong to the map as it is.
bool MapMoves::Wheel(const QWheelEvent& event) {
  if (event.buttons() != Qt::NoButton || !IsOnMap(event.position())) return false;
  wheel_ += event.angleDelta().y();
  Steps(wheel_, kWheelStep, event.position());
  return true;
}

bool MapMoves::Pinch(const QNativeGestureEvent& event) {
  if (event.gestureType() != Qt::ZoomNativeGesture || !IsOnMap(event.position())) return false;
  pinch_ += event.value();
  Steps(pinch_, kPinchStep, event.position());
  return true;
}

bool MapMoves::Press(const QMouseEvent& event) {
  if (event.buttons() != Qt::MiddleButton || !IsOnMap(event.position())) return false;
  drag_ = MiddleDrag{event.position(), screen_.State().Zoom.Current(), false};
  screen_.Frame().viewport()->setCursor(Qt::ClosedHandCursor);
  return true;
}

// The first move is a step to come back from, the others change it.
bool MapMoves::Drag(const QMouseEvent& event) {
  const double cell = Pixels(screen_.Drawing().Cells.CellSize());
  if (cell <= 0) return true;
  const QPointF way = (drag_->From - event.position()) / cell;
  const ZoomRectangle next = Moved(drag_->Shown, static_cast<int>(std::lround(way.x())),
                                   static_cast<int>(std::lround(way.y())));
  ZoomStack& zoom = screen_.State().Zoom;
  if (next == zoom.Current()) return true;
  if (drag_->HasMoved) {
    zoom.Replace(next);
  } else {
    zoom.PushZoomStack(log_, next);
  }
  drag_->HasMoved = true;
  redraw_();
  return true;
}

bool MapMoves::eventFilter(QObject*, QEvent* event) {
  switch (event->type()) {
    case QEvent::Wheel:
      return Wheel(*static_cast<QWheelEvent*>(event));
    case QEvent::NativeGesture:
      return Pinch(*static_cast<QNativeGestureEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return Press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
      return drag_ && Drag(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
      if (!drag_ || static_cast<QMouseEvent*>(event)->button() != Qt::MiddleButton) return false;
      drag_.reset();
      screen_.Frame().viewport()->unsetCursor();
      return true;
    default:
      return false;
  }
}

}  // namespace orrerix
