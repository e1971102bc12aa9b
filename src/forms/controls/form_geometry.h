// SPDX-License-Identifier: MIT
// Twips of forms and controls as Qt's whole pixels.
#pragma once

#include <QMargins>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "picture/twips.h"
#include "shell/whole_twip_rect.h"

namespace orrerix {

// Sides go to the nearest pixel, so that neighbours stay neighbours.
inline QRect PixelRect(int left, int top, int width, int height) {
  const auto pixel = [](int twips) { return static_cast<int>(std::lround(Pixels(twips))); };
  return {QPoint(pixel(left), pixel(top)),
          QSize(pixel(left + width) - pixel(left), pixel(top + height) - pixel(top))};
}
inline QRect PixelRect(const WholeTwipRect& place) {
  return PixelRect(place.Left, place.Top, place.Width, place.Height);
}

// Parts of a twip do not count.
inline QRect PixelRect(const TwipRect& box) {
  return PixelRect(static_cast<int>(box.Left), static_cast<int>(box.Top),
                   static_cast<int>(box.Width), static_cast<int>(box.Height));
}

// What the layouts allow for beside and above the inside of a form, in sum.
inline constexpr QSize kLargestDecoration{10, 33};

// Outer size in twips of a form with this inside and decoration (both pixels). A decoration larger
// than the layouts allow for counts as if it had the largest size, so that nothing is cut.
inline QSize OuterTwips(const QSize& inside, const QSize& decoration) {
  return (inside + decoration.boundedTo(kLargestDecoration)) * static_cast<int>(kTwipsPerPixel);
}

// Outer size of a form, frame and title included.
inline int OuterWidth(const QWidget& form) {
  return OuterTwips(form.size(), form.frameGeometry().size() - form.size()).width();
}
inline int OuterHeight(const QWidget& form) {
  return OuterTwips(form.size(), form.frameGeometry().size() - form.size()).height();
}

// Where the inside of a form of this decoration has to be, so that the form lies within a part of
// the screen: moved first, and made smaller only if it is too large.
inline QRect InsideWithin(const QRect& inside, const QMargins& decoration, const QRect& screen) {
  const QRect room = screen.marginsRemoved(decoration);
  QRect fitted(inside.topLeft(), inside.size().boundedTo(room.size()));
  fitted.moveRight(std::min(fitted.right(), room.right()));
  fitted.moveBottom(std::min(fitted.bottom(), room.bottom()));
  fitted.moveLeft(std::max(fitted.left(), room.left()));
  fitted.moveTop(std::max(fitted.top(), room.top()));
  return fitted;
}

}  // namespace orrerix
