// SPDX-License-Identifier: MIT
#include "picture/pool_painting.h"

#include <QImage>
#include <QPdfWriter>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

bool PaintsInPool(QPainter& painter) {
  bool isInPool = false;
  PaintInPool(painter, [&] {
    isInPool = QThreadPool::globalInstance()->contains(QThread::currentThread());
  });
  return isInPool;
}

TEST(PoolPainting, ARasterDeviceIsPaintedByAThreadOfThePool) {
  QImage image(10, 10, QImage::Format_RGB32);
  QPainter painter(&image);

  EXPECT_TRUE(PaintsInPool(painter));
}

TEST(PoolPainting, ItIsPaintedWhenTheCallReturns) {
  QImage image(200, 200, QImage::Format_RGB32);
  image.fill(Qt::black);
  QPainter painter(&image);

  PaintInPool(painter, [&] { painter.fillRect(image.rect(), Qt::red); });

  EXPECT_EQ(image.pixelColor(100, 100), QColor(Qt::red));
}

TEST(PoolPainting, AnotherDeviceIsPaintedWhereTheCallerIs) {
  const TempFolder folder;
  QPdfWriter writer(QString::fromStdString((folder.Path() / "page.pdf").string()));
  QPainter painter(&writer);

  EXPECT_FALSE(PaintsInPool(painter));
}

TEST(PoolPainting, ItDoesNotWaitForAPoolThatIsBusy) {
  QThreadPool& pool = *QThreadPool::globalInstance();
  QSemaphore end;
  int busy = 0;
  while (pool.tryStart([&end] { end.acquire(); })) ++busy;
  QImage image(10, 10, QImage::Format_RGB32);
  QPainter painter(&image);

  EXPECT_FALSE(PaintsInPool(painter));

  end.release(busy);
  pool.waitForDone();
}

}  // namespace
}  // namespace orrerix
