// SPDX-License-Identifier: MIT
#include "forms/map/hover_overlay.h"

#include <QPainter>

#include "forms/controls/form_geometry.h"

namespace orrerix {

HoverOverlay::HoverOverlay(MapScene& scene, QGraphicsView* map)
    : QWidget(map), scene_(scene), map_(map) {
  setObjectName("HoverOverlay");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
  scene_.OnBoxChanged = [this] { Follow(); };
}

HoverOverlay::~HoverOverlay() {
  scene_.OnBoxChanged = nullptr;
}

void HoverOverlay::Follow() {
  const ControlList& box = scene_.InFront(FrontLayer::Box);
  if (box.empty()) return hide();
  const QRectF place = Pixels(box.front().Place);
  setGeometry(map_->mapFromScene(place).boundingRect());
  show();
  raise();
  update();
}

void HoverOverlay::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF shown = map_->mapToScene(geometry()).boundingRect();
  scene_.render(&painter, rect(), shown, Qt::IgnoreAspectRatio);
}

}  // namespace orrerix
