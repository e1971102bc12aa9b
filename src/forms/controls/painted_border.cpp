// SPDX-License-Identifier: MIT
#include "forms/controls/painted_border.h"

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

}  // namespace orrerix
