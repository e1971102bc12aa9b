// SPDX-License-Identifier: MIT
#include "picture/map_view.h"

namespace orrerix {

void SetUpMapView(QGraphicsView& view) {
  view.setFrameShape(QFrame::NoFrame);
  view.setAlignment(Qt::AlignLeft | Qt::AlignTop);
  view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view.setRenderHint(QPainter::Antialiasing);
  view.setViewportUpdateMode(QGraphicsView::BoundingRectViewportUpdate);
  view.setOptimizationFlag(QGraphicsView::DontSavePainterState);
  view.setOptimizationFlag(QGraphicsView::DontAdjustForAntialiasing);
  view.viewport()->setAutoFillBackground(false);
  view.viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

}  // namespace orrerix
