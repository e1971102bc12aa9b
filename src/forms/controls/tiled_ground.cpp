// SPDX-License-Identifier: MIT
#include "forms/controls/tiled_ground.h"

namespace orrerix {

void PaintTiles(QPainter& painter, const QRect& place, PictureStore& pictures) {
  const double ratio = painter.device()->devicePixelRatioF();
  constexpr QSize tile(128, 128);
  QPixmap pixmap = pictures.Scaled(":/pictures/hintergrund.png", tile * ratio);
  pixmap.setDevicePixelRatio(ratio);
  painter.drawTiledPixmap(place, pixmap);
}

}  // namespace orrerix
