// SPDX-License-Identifier: MIT
// From the drawing list's units to Qt's. Pixels exist here and in the windows only.
#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>

#include "map/drawing_list.h"

namespace orrerix {

inline constexpr double kTwipsPerPixel = 15;

// Logical pixels of a length in twips, and back.
inline double Pixels(double twips) {
  return twips / kTwipsPerPixel;
}
inline double Twips(double pixels) {
  return pixels * kTwipsPerPixel;
}

inline QRectF Pixels(const TwipRect& box) {
  return {Pixels(box.Left), Pixels(box.Top), Pixels(box.Width), Pixels(box.Height)};
}

inline QColor ToQColor(Color color) {
  return {color.Red(), color.Green(), color.Blue()};
}

}  // namespace orrerix
