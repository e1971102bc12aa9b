// SPDX-License-Identifier: MIT
#include "picture/pool_painting.h"

#include <QImage>
#include <QMutex>
#include <QPdfWriter>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>
#include <vector>

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

// Lines of all kinds that cross the middle, begin outside or run along it.
void PaintLines(QPainter& painter) {
  QPen dotted(QColor(200, 200, 200, 180), 2);
  dotted.setCapStyle(Qt::FlatCap);
  dotted.setDashPattern({1.5, 1.5});
  for (const QPen& pen : {QPen(Qt::red, 2), dotted, QPen(QColor(0, 255, 0, 100), 6)}) {
    painter.setPen(pen);
    painter.drawLine(QPointF(-30.3, -20.7), QPointF(110.2, 140.9));
    painter.drawLine(QPointF(70.5, -300.2), QPointF(12.1, 160.4));
    painter.drawLine(QPointF(5.5, 49.8), QPointF(95.1, 50.3));
    painter.drawLine(QPointF(0, 0), QPointF(99.9, 99.9));
  }
}

TEST(PoolPainting, TwoHalvesHaveThePixelsOfTheWhole) {
  for (const double ratio : {1.0, 2.0}) {
    QImage whole(QSize(100, 100) * ratio, QImage::Format_RGB32);
    whole.setDevicePixelRatio(ratio);
    whole.fill(Qt::black);
    QImage halves = whole.copy();
    QPainter painter(&whole);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(0.9, 0.9);
    PaintInPool(painter, [&] { PaintLines(painter); });
    QPainter other(&halves);
    other.setRenderHint(QPainter::Antialiasing);
    other.scale(0.9, 0.9);
    PaintInHalves(other, PaintLines);

    EXPECT_EQ(halves, whole) << ratio;
  }
}

TEST(PoolPainting, EachHalfHasAPainterThatIsClippedToIt) {
  QImage image(100, 101, QImage::Format_RGB32);
  QPainter painter(&image);
  QMutex mutex;
  QRegion all;
  int count = 0;
  PaintInHalves(painter, [&](QPainter& half) {
    const QMutexLocker lock(&mutex);
    EXPECT_FALSE(all.intersects(half.clipRegion()));
    all += half.clipRegion();
    ++count;
  });

  EXPECT_EQ(count, 2);
  EXPECT_EQ(all, QRegion(image.rect()));
}

TEST(PoolPainting, WhatIsClippedIsPaintedAtOnce) {
  QImage image(100, 100, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setClipRect(10, 10, 20, 20);
  std::vector<QPainter*> painters;

  PaintInHalves(painter, [&](QPainter& used) { painters.push_back(&used); });

  EXPECT_EQ(painters, std::vector{&painter});
}

}  // namespace
}  // namespace orrerix
