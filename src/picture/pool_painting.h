// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QRegion>
#include <functional>

namespace orrerix {

// The outermost pixels of an image: top left and bottom right. Qt begins dashes where a line enters
// the bounds of the clip, so a clip that shall not move them has these pixels, too.
QRegion OutermostPixels(const QRect& image);

// Paints lines or filled shapes, but no text, and returns when it is done. On a raster device Qt
// cuts whatever it paints into pieces for its thread pool and waits for each of them, which takes
// longer than a line does. Threads of the pool paint by themselves, so the whole work goes to one
// of them; if none is free it is done here.
void PaintInPool(const QPainter& painter, const std::function<void()>& paint);

// The same for work that leaves the painter as it is. Of an image of which nothing is clipped two
// threads paint a half each: `paint` is called in both, with a painter that is clipped to one. The
// pixels are those that a single painter would leave.
void PaintInHalves(QPainter& painter, const std::function<void(QPainter&)>& paint);

// The same for work whose pixels do not depend on where the clip begins, such as copying pictures.
// The halves are those of what the painter may paint, so that it serves windows, too.
void PaintPixelsInHalves(QPainter& painter, const std::function<void(QPainter&)>& paint);

}  // namespace orrerix
