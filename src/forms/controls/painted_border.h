// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

#include "map/borders.h"
#include "picture/picture_store.h"

namespace orrerix {

// Paints the pieces of a border set along the inside of a rectangle of a window.
void PaintBorder(QPainter& painter, BorderSet set, const QRect& place, PictureStore& pictures);

}  // namespace orrerix
