// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace orrerix {

// The emblem, 640 by 160: an orrery, divided from the top left to the bottom right corner into two
// links. Above the line its worlds are real, below it they are brass and gears.
QImage PaintLogo(int scale);

}  // namespace orrerix
