// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace orrerix {

// The decoration at the left of the station window: a mast that hangs into space from above and
// fades into the window's ground. 80 by 600.
QImage PaintStationStrip(int scale);

}  // namespace orrerix
