// SPDX-License-Identifier: MIT
#include "picture/still_picture.h"

#include <QPainter>
#include <algorithm>
#include <utility>

namespace orrerix {
namespace {

// Painting all takes less time than keeping to a region of more rectangles.
constexpr int kMostRectangles = 600;

QRegion FirstOf(const QRegion& pixels, qint64 area) {
  QRegion first;
  for (const QRect& rect : pixels) {
    const qint64 rows = std::max<qint64>(1, area / rect.width());
    const int height = static_cast<int>(std::min<qint64>(rect.height(), rows));
    first += QRect(rect.topLeft(), QSize(rect.width(), height));
    area -= qint64{rect.width()} * height;
    if (area <= 0 || height < rect.height()) break;
  }
  return first;
}

QRect SeenPart(const MapScene& map, const StillLook& look) {
  return look.ToDevice.mapRect(map.StillPart()).toAlignedRect() & QRect(QPoint(), look.Size);
}

}  // namespace

// As large as the window, so that lines are cut off at the same pixels as there. What the panel
// hides is never written and takes no memory.
void StillPicture::Begin(MapScene& map, const StillLook& look) {
  if (image_.size() != look.Size) image_ = QImage(look.Size, QImage::Format_RGB32);
  look_ = look;
  version_ = map.StillVersion();
  pictures_ = map.PicturesVersion();
  part_ = SeenPart(map, look);
  missing_ = part_;
  coarse_ = QRegion();
}

QImage StillPicture::Release() {
  return std::exchange(image_, QImage());
}

QRegion StillPicture::PixelsOf(const QRegion& places) const {
  QRegion pixels;
  for (const QRect& place : places) {
    pixels += look_.ToDevice.mapRect(QRectF(place)).toAlignedRect();
  }
  return pixels & part_;
}

void StillPicture::Follow(MapScene& map) {
  const auto changed = map.StillChangesSince(version_);
  version_ = map.StillVersion();
  part_ = SeenPart(map, look_);
  QRegion pixels = changed ? PixelsOf(*changed) : QRegion(part_);
  if (pixels.rectCount() > kMostRectangles) pixels = part_;
  missing_ += pixels;
}

void StillPicture::FollowPictures(MapScene& map) {
  coarse_ += PixelsOf(map.FinerSince(pictures_));
  pictures_ = map.PicturesVersion();
}

QRegion StillPicture::NextDue(qint64 area) const {
  return FirstOf(missing_.isEmpty() ? coarse_ : missing_, area);
}

void StillPicture::Paint(MapScene& map, const QRegion& pixels, QWidget* window) {
  if (pixels.isEmpty()) return;
  missing_ -= pixels;
  coarse_ -= pixels;
  if (pixels == QRegion(part_)) return PaintWithin(map, {}, window);
  // Lines are painted in these in any case (pool_painting.h).
  const QRect image = image_.rect();
  const QRgb first = image_.pixel(image.topLeft());
  const QRgb last = image_.pixel(image.bottomRight());
  PaintWithin(map, pixels, window);
  if (!pixels.contains(image.topLeft())) image_.setPixel(image.topLeft(), first);
  if (!pixels.contains(image.bottomRight())) image_.setPixel(image.bottomRight(), last);
}

// Null paints all.
void StillPicture::PaintWithin(MapScene& map, const QRegion& pixels, QWidget* window) {
  image_.setDevicePixelRatio(look_.DevicePixelRatio);
  QPainter painter(&image_);
  painter.setRenderHint(QPainter::Antialiasing);
  const QTransform toPixels = painter.deviceTransform().inverted();
  QRegion places = map.StillPart().toAlignedRect();
  if (!pixels.isEmpty()) {
    painter.setWorldTransform(toPixels);
    painter.setClipRegion(pixels);
    const QTransform toScene = look_.ToDevice.inverted();
    places = QRegion();
    for (const QRect& rect : pixels) places += toScene.mapRect(QRectF(rect)).toAlignedRect();
  }
  painter.setWorldTransform(look_.ToDevice * toPixels);
  map.DrawStill(painter, places, window);
  painter.end();
  image_.setDevicePixelRatio(1);  // it is copied pixel for pixel
}

}  // namespace orrerix
