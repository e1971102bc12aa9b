// SPDX-License-Identifier: MIT
// Twips of forms and controls as Qt's whole pixels.
#pragma once

#include <QWidget>
#include <cmath>

#include "forms/import_screen_layout.h"
#include "picture/twips.h"

namespace orrerix {

// Sides go to the nearest pixel, so that neighbours stay neighbours.
inline QRect PixelRect(int left, int top, int width, int height) {
  const auto pixel = [](int twips) { return static_cast<int>(std::lround(Pixels(twips))); };
  return {QPoint(pixel(left), pixel(top)),
          QSize(pixel(left + width) - pixel(left), pixel(top + height) - pixel(top))};
}
inline QRect PixelRect(const FormPlace& place) {
  return PixelRect(place.Left, place.Top, place.Width, place.Height);
}

// The outer size that a form counts with, out of its inner size and that of its decoration, pixels.
// The lay-outs leave room for a decoration of 10 by 33 pixels and no more: a larger one counts as if
// it had those, so that nothing of what is laid out is cut off.
inline QSize CountedOuterSize(const QSize& inner, const QSize& decoration) {
  return inner + decoration.boundedTo(QSize(10, 33));
}

// Outer size of a form, frame and title included.
inline int OuterWidth(const QWidget& form) {
  return static_cast<int>(Twips(form.frameGeometry().width()));
}
inline int OuterHeight(const QWidget& form) {
  return static_cast<int>(Twips(form.frameGeometry().height()));
}

}  // namespace orrerix
