// SPDX-License-Identifier: MIT
#include "picture/pool_painting.h"

#include <QPaintEngine>
#include <QSemaphore>
#include <QThreadPool>

namespace orrerix {

void PaintInPool(const QPainter& painter, const std::function<void()>& paint) {
  const QPaintEngine* engine = painter.paintEngine();
  const bool isRaster = engine != nullptr && engine->type() == QPaintEngine::Raster;
  QSemaphore done;
  const auto task = [&] {
    paint();
    done.release();
  };
  if (isRaster && QThreadPool::globalInstance()->tryStart(task)) return done.acquire();
  paint();
}

}  // namespace orrerix
