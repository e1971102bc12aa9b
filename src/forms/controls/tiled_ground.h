// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

#include "picture/picture_store.h"

namespace orrerix {

// Covers a part of a window with the map's background tile, as fine as the screen is.
void PaintTiles(QPainter& painter, const QRect& place, PictureStore& pictures);

}  // namespace orrerix
