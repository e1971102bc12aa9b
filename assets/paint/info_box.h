// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>

namespace orrerix {

// The head band of the info box with the program's name, 541 by 41.
QImage PaintHeadBand(int scale);

// What lies after the news in the info box, 300 by 400: dark, with faint orbits.
QImage PaintInfoBackground(int scale);

}  // namespace orrerix
