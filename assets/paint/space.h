// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace orrerix {

// The painted universe: all 18 by 19 cells, each nation in its hue. 464 by 467.
QImage PaintUniverse(int scale);

// One system, 467 by 469, in the colours of the place of its cell. Picture numbers run from 0 to
// SystemPictures - 1.
QImage PaintSystem(int picture, int scale);

// A piece of sky, 128 by 128, whose opposite sides fit together.
QImage PaintBackgroundTile(int scale);

// The filler of a cell without a system, 462 by 461.
QImage PaintEmptySpace(int scale);

}  // namespace orrerix
