// SPDX-License-Identifier: MIT
#include "forms/controls/painted_ground.h"

#include <cmath>

#include "picture/picture_files.h"
#include "picture/twips.h"

namespace orrerix {

void PaintBorder(QPainter& painter, BorderSet set, const QRect& place, PictureStore& pictures) {
  const auto side = [](int pixels) { return static_cast<int>(std::lround(Twips(pixels))); };
  const ControlList pieces = BorderPieces(set, side(place.left()), side(place.top()),
                                          side(place.right() + 1), side(place.bottom() + 1));
  for (const Control& piece : pieces) {
    pictures.Draw(painter, PictureFile(piece), Pixels(piece.Place));
  }
}

void PaintTiles(QPainter& painter, const QRect& place, PictureStore& pictures) {
  const double ratio = painter.device()->devicePixelRatioF();
  constexpr QSize tile(128, 128);
  QPixmap pixmap = pictures.Scaled(":/pictures/hintergrund.png", tile * ratio);
  pixmap.setDevicePixelRatio(ratio);
  painter.drawTiledPixmap(place, pixmap);
}

}  // namespace orrerix
