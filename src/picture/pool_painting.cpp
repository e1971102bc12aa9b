// SPDX-License-Identifier: MIT
#include "picture/pool_painting.h"

#include <QImage>
#include <QPaintEngine>
#include <QSemaphore>
#include <QThreadPool>
#include <array>

namespace orrerix {
namespace {

bool PaintsPixels(const QPainter& painter) {
  const QPaintEngine* engine = painter.paintEngine();
  return engine != nullptr && engine->type() == QPaintEngine::Raster;
}

// The image that pixels go to; null where it is none.
const QImage* ImageOf(const QPainter& painter) {
  if (!PaintsPixels(painter) || painter.hasClipping()) return nullptr;
  const QPaintDevice* device = painter.paintEngine()->paintDevice();
  return device->devType() == QInternal::Image ? static_cast<const QImage*>(device) : nullptr;
}

// The image that all of is painted; null for windows and for a part of an image.
const QImage* WholeImage(const QPainter& painter) {
  const QImage* image = ImageOf(painter);
  return image != nullptr && painter.paintEngine()->systemClip().isEmpty() ? image : nullptr;
}

// An image of the same pixels, for a painter of its own. The painter that is at work on the image
// has made the pixels its own.
QImage SamePixels(const QImage& image) {
  QImage same(const_cast<uchar*>(image.constBits()), image.width(), image.height(),
              image.bytesPerLine(), image.format());
  same.setDevicePixelRatio(image.devicePixelRatio());
  return same;
}

// The upper and the lower half, each of them with the outermost pixel of the other.
std::array<QRegion, 2> HalvesOf(const QRect& image) {
  const QRect upper(image.topLeft(), QSize(image.width(), image.height() / 2));
  const QRegion half = QRegion(upper).xored(OutermostPixels(image));
  return {half, QRegion(image) - half};
}

void PaintPart(const QPainter& painter, QImage image, const QRegion& part,
               const std::function<void(QPainter&)>& paint) {
  QPainter own(&image);
  const QTransform pixels = own.deviceTransform().inverted();
  own.setRenderHints(painter.renderHints());
  own.setWorldTransform(pixels);
  own.setClipRegion(part);
  own.setWorldTransform(painter.deviceTransform() * pixels);
  paint(own);
}

// Runs the work for two parts of an image in two threads.
void PaintTwoParts(const QPainter& painter, const QImage& image,
                   const std::array<QRegion, 2>& parts,
                   const std::function<void(QPainter&)>& paint) {
  QSemaphore done;
  for (const QRegion& part : parts) {
    const auto task = [&, part] {
      PaintPart(painter, SamePixels(image), part, paint);
      done.release();
    };
    if (!QThreadPool::globalInstance()->tryStart(task)) task();
  }
  done.acquire(static_cast<int>(parts.size()));
}

}  // namespace

QRegion OutermostPixels(const QRect& image) {
  return QRegion(image.left(), image.top(), 1, 1) + QRegion(image.right(), image.bottom(), 1, 1);
}

void PaintInPool(const QPainter& painter, const std::function<void()>& paint) {
  QSemaphore done;
  const auto task = [&] {
    paint();
    done.release();
  };
  if (PaintsPixels(painter) && QThreadPool::globalInstance()->tryStart(task)) return done.acquire();
  paint();
}

void PaintInHalves(QPainter& painter, const std::function<void(QPainter&)>& paint) {
  const QImage* image = WholeImage(painter);
  if (image == nullptr) return PaintInPool(painter, [&] { paint(painter); });
  PaintTwoParts(painter, *image, HalvesOf(image->rect()), paint);
}

void PaintPixelsInHalves(QPainter& painter, const std::function<void(QPainter&)>& paint) {
  const QImage* image = ImageOf(painter);
  if (image == nullptr) return paint(painter);
  const QRegion clip = painter.paintEngine()->systemClip();
  const QRegion open = clip.isEmpty() ? QRegion(image->rect()) : clip & image->rect();
  QRect upper = open.boundingRect();
  upper.setHeight(upper.height() / 2);
  PaintTwoParts(painter, *image, {open & upper, open - upper}, paint);
}

}  // namespace orrerix
