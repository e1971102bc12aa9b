// SPDX-License-Identifier: MIT
#include "picture/picture_store.h"

#include <QPaintEngine>
#include <algorithm>
#include <cmath>

namespace orrerix {
namespace {

// Room for scaled pictures, in KiB: as much as the screen shows twice over, so that the way back
// from a zoom is short. The largest screens have room for what they show and a half.
constexpr int kLeastCacheRoom = 8 * 1024;
constexpr int kUsualCacheRoom = 64 * 1024;

// With this room, that of a screen of 1920 by 1200 pixels, all that is shown is scaled in little
// more than the time of a frame. On larger screens only pictures of no more pixels are scaled when
// they are drawn first, and drawings painted.
constexpr int kQuickRoom = 18 * 1024;
constexpr qint64 kQuickPicture = 128 * 1024;
constexpr qint64 kQuickDrawing = 64 * 64;

// As many pixels are scaled in one go where others wait for the next redraw.
constexpr qint64 kScaledAtOnce = 2 * 1024 * 1024;

// A picture may be enlarged by so much point by point.
constexpr double kAlmost = 1.25;

// A picture of which less than one part in so many is seen.
constexpr int kHiddenMostly = 4;

qint64 AreaOf(QSize size) {
  return static_cast<qint64>(size.width()) * size.height();
}

int CostOf(QSize size) {
  constexpr qint64 bytesPerPixel = 4;
  return static_cast<int>(std::max<qint64>(1, AreaOf(size) * bytesPerPixel / 1024));
}

bool IsRaster(const QPainter& painter) {
  return painter.paintEngine() != nullptr &&
         painter.paintEngine()->type() == QPaintEngine::Raster &&
         painter.deviceTransform().type() <= QTransform::TxScale;
}

// The corner goes to the nearest pixel and the size to the next whole one: pictures of one size
// stay of one size wherever they lie, and neighbours overlap by a pixel rather than part by one.
QRect SnappedToPixels(const QRectF& place) {
  constexpr double nothing = 0.01;
  return {place.topLeft().toPoint(), QSize(static_cast<int>(std::ceil(place.width() - nothing)),
                                           static_cast<int>(std::ceil(place.height() - nothing)))};
}

// Draws a picture pixel for pixel, of a clip of many rectangles one after the other: Qt would hand
// their rows to its thread pool, and wait for it each time. The painter is in the device's pixels.
void DrawInClip(QPainter& painter, QPoint corner, const QPixmap& picture) {
  const QRegion clip = painter.hasClipping() ? painter.clipRegion() : QRegion();
  if (clip.rectCount() < 2) return painter.drawPixmap(corner, picture);
  painter.setClipping(false);
  for (const QRect& rect : clip& QRect(corner, picture.size())) {
    painter.drawPixmap(rect.topLeft(), picture, rect.translated(-corner));
  }
  painter.setClipping(true);
}

}  // namespace

PictureStore::PictureStore() : scaled_(kLeastCacheRoom) {}

qint64 PictureStore::BytesOfScaled() const {
  return qint64{1024} * scaled_.totalCost();
}

QString PictureStore::FileFor(const QString& file, const Sized& best, Reading reading) {
  if (sources_.IsAtHand(best.Name, best.Size)) return best.Name;
  if (reading == Reading::Later) return sources_.FinestAtHand(file);
  sources_.FullSourceOf(best.Name);
  return best.Name;
}

// Whether making it takes hardly longer than drawing it, or would have to be done each time.
bool PictureStore::IsQuick(const Sized& best) {
  if (CostOf(best.Size) > scaled_.maxCost() || scaled_.maxCost() <= kQuickRoom) return true;
  const bool isDrawing = sources_.SourceOf(best.Name).Drawing != nullptr;
  return AreaOf(best.Size) <= (isDrawing ? kQuickDrawing : kQuickPicture);
}

void PictureStore::Want(const WantedPicture& picture) {
  const auto isSame = [&](const WantedPicture& other) {
    return other.Best == picture.Best && other.Name == picture.Name &&
           other.IsPart == picture.IsPart;
  };
  if (std::any_of(wanted_.begin(), wanted_.end(), isSame)) return;
  wanted_.push_back(picture);
  if (wanted_.size() == 1 && OnWanted) OnWanted();
}

bool PictureStore::ReadWanted(Waiting waiting) {
  for (qint64 pixels = 0; !wanted_.empty() && pixels < kScaledAtOnce;) {
    const auto [name, best, isPart, make] = wanted_.front();
    if (!make && !sources_.IsAtHand(best.Name, best.Size)) {
      if (pixels > 0) return true;  // reading takes long enough by itself
      if (waiting == Waiting::ForFiles) {
        sources_.FullSourceOf(best.Name).IsAwaited = true;
      } else if (!sources_.AwaitFull(best.Name)) {
        return false;
      }
      pixels = kScaledAtOnce;
    }
    wanted_.pop_front();
    if (make) Kept(best, make);
    if (!make && !isPart) ScaledOf(best);
    pixels += AreaOf(best.Size);
    finer_[name] = ++version_;
  }
  return true;
}

std::uint64_t PictureStore::VersionOf(const QString& file) const {
  const auto found = finer_.find(file);
  return found == finer_.end() ? 0 : found->second;
}

QPixmap PictureStore::Render(const QString& file, QSize size) {
  PictureSource& source = sources_.SourceOf(file);
  source.IsAwaited = false;
  if (source.Drawing) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    source.Drawing->Paint(painter, QRectF(QPointF(0, 0), size));
    painter.end();
    return QPixmap::fromImage(std::move(image));
  }
  if (source.Levels.empty()) return {};
  const QImage& level = source.LevelFor(size);
  QImage image(size, level.format());
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(image.rect(), level);
  painter.end();
  return QPixmap::fromImage(std::move(image));
}

QPixmap PictureStore::Scaled(const QString& file, QSize size) {
  if (size.isEmpty()) return {};
  const Sized best{sources_.VariantFor(file, size), size};
  if (!scaled_.contains(best)) FileFor(file, best, Reading::AtOnce);
  return ScaledOf(best);
}

QPixmap PictureStore::ScaledOf(const Sized& key) {
  return Kept(key, [&] { return Render(key.Name, key.Size); });
}

QPixmap PictureStore::Kept(const Sized& key, const std::function<QPixmap()>& make) {
  if (const QPixmap* known = scaled_.object(key)) return *known;
  QPixmap pixmap = make();
  scaled_.insert(key, new QPixmap(pixmap), CostOf(key.Size));
  return pixmap;
}

// The largest of the sizes that are kept.
const QPixmap* PictureStore::OtherSizeOf(const QString& name) const {
  const QPixmap* largest = nullptr;
  for (const Sized& key : scaled_.keys()) {
    if (key.Name != name) continue;
    const QPixmap* other = scaled_.object(key);
    if (largest == nullptr || other->width() > largest->width()) largest = other;
  }
  return largest;
}

// Draws another size point by point, unless these would be seen.
bool PictureStore::DrawOtherSize(QPainter& painter, const QString& name,
                                 const QRect& target) const {
  const QPixmap* other = OtherSizeOf(name);
  if (other == nullptr || kAlmost * other->width() < target.width()) return false;
  const bool smooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
  painter.drawPixmap(target, *other);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
  return true;
}

void PictureStore::DrawMade(QPainter& painter, const Sized& picture, QPoint corner,
                            const std::function<QPixmap()>& make) {
  const bool isKept = scaled_.contains(picture);
  if (!isKept && DrawOtherSize(painter, picture.Name, {corner, picture.Size})) {
    return Want({picture.Name, picture, false, make});
  }
  painter.drawPixmap(corner, Kept(picture, make));
}

void PictureStore::DrawSource(QPainter& painter, const QString& file, const QRectF& place) {
  PictureSource& source = sources_.SourceOf(file);
  source.IsAwaited = false;
  if (source.Drawing) {
    source.Drawing->Paint(painter, place);
  } else if (!source.Levels.empty()) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, source.Levels.front());
  }
}

void PictureStore::DrawPart(QPainter& painter, const QString& file, const QRect& target,
                            const QRect& part) {
  painter.save();
  painter.setClipRect(part, Qt::IntersectClip);
  PictureSource& source = sources_.SourceOf(file);
  source.IsAwaited = false;
  if (source.Drawing) source.Drawing->Paint(painter, target);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  // The same level whether or not a larger one is at hand.
  if (!source.Levels.empty()) painter.drawImage(target, source.LevelFor(target.size()));
  painter.restore();
}

// Draws what is at hand of just this file without keeping it, or another size of the best one.
// False if nothing is.
bool PictureStore::DrawCoarse(QPainter& painter, const QString& file, const QString& best,
                              const QRect& target) {
  PictureSource& source = sources_.SourceOf(file);
  if (source.Drawing) {
    const QPixmap* other = OtherSizeOf(file);
    if (other != nullptr) painter.drawPixmap(target, *other);
    return other != nullptr;
  }
  if (source.Levels.empty()) return true;
  const QImage& level = source.LevelFor(target.size());
  // Points that are enlarged would look like another picture.
  const bool isEnlarged = level.width() < target.width() || level.height() < target.height();
  if (isEnlarged && DrawOtherSize(painter, best, target)) return true;
  const bool smooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, isEnlarged);
  painter.drawImage(target, level);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
  return true;
}

void PictureStore::DrawWhole(QPainter& painter, const QString& file, const QRect& target,
                             Reading reading) {
  const Sized best{sources_.VariantFor(file, target.size()), target.size()};
  if (!scaled_.contains(best)) {
    const QString chosen = FileFor(file, best, reading);
    const bool isReady =
        sources_.IsAtHand(best.Name, best.Size) && (reading == Reading::AtOnce || IsQuick(best));
    if (!isReady && DrawCoarse(painter, chosen, best.Name, target)) return Want({file, best});
  }
  DrawInClip(painter, target.topLeft(), ScaledOf(best));
}

QRectF PictureStore::PlaceOnDevice(const QPainter& painter, const QRectF& place) {
  const QRectF mapped = painter.deviceTransform().mapRect(place);
  return IsRaster(painter) ? QRectF(SnappedToPixels(mapped)) : mapped;
}

// A widget has logical pixels, and may be painted on a device of finer ones than its screen's.
void PictureStore::MakeRoomFor(const QPainter& painter) {
  const QPaintDevice& device = *painter.device();
  const double logical = painter.worldTransform().m11();
  const bool isWidget = device.devType() == QInternal::Widget && logical != 0;
  const double ratio = isWidget ? painter.deviceTransform().m11() / logical : 1;
  const QSize size = (QSizeF(device.width(), device.height()) * ratio).toSize();
  const int screen = CostOf(size);
  const int room = std::max(screen + screen / 2, std::min(kUsualCacheRoom, 2 * screen));
  if (room > scaled_.maxCost()) scaled_.setMaxCost(room);
}

void PictureStore::Draw(QPainter& painter, const QString& file, const QRectF& place,
                        const QRectF& seen, Reading reading) {
  if (file.isEmpty() || place.isEmpty() || seen.isEmpty()) return;
  const QTransform toDevice = painter.deviceTransform();
  if (!IsRaster(painter)) {
    const QSize size = toDevice.mapRect(place).size().toSize();
    const QString variant = sources_.VariantFor(file, size);
    sources_.FullSourceOf(variant);
    return DrawSource(painter, variant, place);
  }
  MakeRoomFor(painter);
  const QRect target = SnappedToPixels(toDevice.mapRect(place));
  const QRect part = SnappedToPixels(toDevice.mapRect(seen)).intersected(target);
  if (part.isEmpty()) return;
  const bool isPart = AreaOf(part.size()) * kHiddenMostly < AreaOf(target.size());
  // Within these lines the painter's pixels are the device's own.
  const QTransform world = painter.worldTransform();
  painter.setWorldTransform(toDevice.inverted() * world);
  if (isPart) {
    const Sized best{sources_.VariantFor(file, target.size()), target.size()};
    DrawPart(painter, FileFor(file, best, reading), target, part);
    if (!sources_.IsAtHand(best.Name, best.Size)) Want({file, best, true});
  } else {
    DrawWhole(painter, file, target, reading);
  }
  painter.setWorldTransform(world);
}

}  // namespace orrerix
