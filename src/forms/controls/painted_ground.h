// SPDX-License-Identifier: MIT
// Grounds and borders of windows, painted from the map's own pictures.
#pragma once

#include <QPainter>

#include "map/layers/borders.h"
#include "picture/picture_store.h"

namespace orrerix {

// Paints the pieces of a border set along the inside of a rectangle of a window.
void PaintBorder(QPainter& painter, BorderSet set, const QRect& place, PictureStore& pictures);

// Covers a part of a window with the map's background tile, as fine as the screen is.
void PaintTiles(QPainter& painter, const QRect& place, PictureStore& pictures);

}  // namespace orrerix
