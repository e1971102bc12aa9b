// SPDX-License-Identifier: MIT
#include "forms/start/progress_shape.h"

#include <QPainter>

#include "picture/twips.h"

namespace orrerix {

ProgressShape::ProgressShape(Color border, Color fill, QWidget* parent)
    : QWidget(parent), border_(ToQColor(border)), fill_(ToQColor(fill)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ProgressShape::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), border_);
  painter.fillRect(rect().adjusted(1, 1, -1, -1), fill_);
}

}  // namespace orrerix
