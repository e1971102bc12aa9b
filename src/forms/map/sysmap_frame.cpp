// SPDX-License-Identifier: MIT
#include "forms/map/sysmap_frame.h"

#include <QMouseEvent>
#include <optional>

#include "forms/controls/control_name.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

// Two buttons at once are neither.
PointerButton ButtonOf(Qt::MouseButtons buttons) {
  if (buttons == Qt::LeftButton) return PointerButton::Left;
  if (buttons == Qt::RightButton) return PointerButton::Right;
  return PointerButton::None;
}

std::optional<MapKey> MapKeyOf(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Left:
      return MapKey::Left;
    case Qt::Key_Right:
      return MapKey::Right;
    case Qt::Key_Up:
      return MapKey::Up;
    case Qt::Key_Down:
      return MapKey::Down;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return MapKey::ZoomIn;
    case Qt::Key_Backspace:
    case Qt::Key_Escape:
      return MapKey::GoBack;
    default:
      return std::nullopt;
  }
}

}  // namespace

SysmapFrame::SysmapFrame(MapScene& scene, QWidget* parent) : MapSceneView(parent), scene_(scene) {
  setScene(&scene);
  setObjectName(NameOf(ControlId::MapFrame));
  setContextMenuPolicy(Qt::PreventContextMenu);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
}

MapPointer SysmapFrame::PointerOf(const QMouseEvent& event, PointerButton button) const {
  const QPointF point = viewportTransform().inverted().map(event.position());
  const ControlHit hit = scene_.HitAt(point);
  const bool others = (event.buttons() & ~event.button()) != Qt::NoButton;
  return {Twips(point.x()), Twips(point.y()), button, others, hit.Shown, hit.OnPanel};
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

// The map is moved by zooming only.
void SysmapFrame::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

void SysmapFrame::keyPressEvent(QKeyEvent* event) {
  const auto key = MapKeyOf(*event);
  if (!key || keys_ == nullptr) {
    event->ignore();  // the view would scroll by it
    return;
  }
  keys_->KeyDown(*key);
}

void SysmapFrame::focusInEvent(QFocusEvent* event) {
  MapSceneView::focusInEvent(event);
  const bool byTab =
      event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  if (byTab && keys_ != nullptr) keys_->FocusByTab();
}

void SysmapFrame::focusOutEvent(QFocusEvent* event) {
  MapSceneView::focusOutEvent(event);
  if (keys_ != nullptr) keys_->FocusLost();
}

}  // namespace orrerix
