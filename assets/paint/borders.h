// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace orrerix {

constexpr int BorderSets = 4;
constexpr int BorderPieces = 8;

// One piece of a border set. Pieces: 0 top left corner, 1 top edge, 2 top right corner, 3 left
// edge, 4 right edge, 5 bottom left corner, 6 bottom edge, 7 bottom right corner.
// Corners are 21 by 21 in the sets 0 and 1, 15 by 16 in the sets 2 and 3. Edges are 4 thick and
// the same all along, so that they can be stretched.
QImage PaintBorderPiece(int set, int piece, int scale);

}  // namespace orrerix
