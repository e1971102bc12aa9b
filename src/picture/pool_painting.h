// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <functional>

namespace orrerix {

// Paints lines or filled shapes, but no text, and returns when it is done. On a raster device Qt
// cuts whatever it paints into pieces for its thread pool and waits for each of them, which takes
// longer than a line does. Threads of the pool paint by themselves, so the whole work goes to one
// of them; if none is free it is done here.
void PaintInPool(const QPainter& painter, const std::function<void()>& paint);

}  // namespace orrerix
