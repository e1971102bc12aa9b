// SPDX-License-Identifier: MIT
#include "forms/sysmap_frame.h"

#include <QMouseEvent>

#include "picture/twips.h"

namespace orrerix {
namespace {

PointerButton ButtonOf(Qt::MouseButtons buttons) {
  if (buttons & Qt::LeftButton) return PointerButton::Left;
  if (buttons & Qt::RightButton) return PointerButton::Right;
  return PointerButton::None;
}

}  // namespace

SysmapFrame::SysmapFrame(MapScene& scene, QWidget* parent)
    : QGraphicsView(&scene, parent), scene_(scene) {
  setObjectName("SysmapFrame");
  setFrameShape(QFrame::NoFrame);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setRenderHint(QPainter::Antialiasing);
  setViewportUpdateMode(QGraphicsView::BoundingRectViewportUpdate);
  setOptimizationFlag(DontSavePainterState);
  setOptimizationFlag(DontAdjustForAntialiasing);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setMouseTracking(true);
}

MapPointer SysmapFrame::PointerOf(const QMouseEvent& event, PointerButton button) const {
  const QPointF point = mapToScene(event.position().toPoint());
  return {Twips(point.x()), Twips(point.y()), button, scene_.ControlAt(point)};
}

void SysmapFrame::mousePressEvent(QMouseEvent* event) {
  if (mouse_ != nullptr) mouse_->MouseDown(PointerOf(*event, ButtonOf(event->button())));
}

// The second press of a double click is a press like any other.
void SysmapFrame::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event);
}

void SysmapFrame::mouseMoveEvent(QMouseEvent* event) {
  if (mouse_ != nullptr) mouse_->MouseMove(PointerOf(*event, ButtonOf(event->buttons())));
}

void SysmapFrame::mouseReleaseEvent(QMouseEvent* event) {
  if (mouse_ != nullptr) mouse_->MouseUp(PointerOf(*event, ButtonOf(event->button())));
}

}  // namespace orrerix
