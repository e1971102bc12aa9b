// SPDX-License-Identifier: MIT
#include "picture/picture_store.h"

#include <QFile>
#include <QImageReader>
#include <QPaintEngine>
#include <algorithm>
#include <cmath>

namespace orrerix {
namespace {

// Room for scaled pictures, in KiB: as much as the screen shows twice over, so that the way back
// from a zoom is short. The largest screens have room for what they show and a half.
constexpr int kLeastCacheRoom = 8 * 1024;
constexpr int kUsualCacheRoom = 64 * 1024;

// Room for pictures that are kept in full, in bytes.
constexpr qint64 kFullRoom = 8 * 1024 * 1024;

// With this room, that of a screen of 1920 by 1200 pixels, all that is shown is scaled in little
// more than the time of a frame. On larger screens only pictures of no more pixels are scaled when
// they are drawn first, and drawings painted.
constexpr int kQuickRoom = 18 * 1024;
constexpr qint64 kQuickPicture = 128 * 1024;
constexpr qint64 kQuickDrawing = 64 * 64;

// As many pixels are scaled in one go where others wait for the next redraw.
constexpr qint64 kScaledAtOnce = 2 * 1024 * 1024;

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

// The variant of a file for a scale; empty if there is none.
QString VariantOf(const QString& file, int scale) {
  const auto dot = file.lastIndexOf('.');
  if (dot < 0) return {};
  for (const QString& ending : {file.mid(dot), QStringLiteral(".jpg")}) {
    QString variant = file.left(dot) + QStringLiteral("@%1x").arg(scale) + ending;
    if (QFile::exists(variant)) return variant;
  }
  return {};
}

QString DrawingName(const QString& file) {
  const auto ending = file.lastIndexOf('.');
  return ending < 0 ? file : file.left(ending) + QStringLiteral(".svg");
}

// A file beside the one that is asked for.
bool IsBrother(const QString& file) {
  return file.contains('@');
}

// Halves a picture until another half would be nothing. All are made when the picture is read, so
// that no new size has to look at more than four pixels for one of its own.
std::vector<QImage> LevelsOf(QImage picture) {
  std::vector<QImage> levels = {std::move(picture)};
  while (std::min(levels.back().width(), levels.back().height()) > 1) {
    levels.push_back(levels.back().scaled(levels.back().size() / 2, Qt::IgnoreAspectRatio,
                                          Qt::SmoothTransformation));
  }
  return levels;
}

}  // namespace

const QImage& PictureStore::Source::LevelFor(QSize size) const {
  const auto tooSmall = std::find_if(Levels.begin() + 1, Levels.end(), [size](const QImage& level) {
    return level.width() < size.width() || level.height() < size.height();
  });
  return *(tooSmall - 1);
}

bool PictureStore::Source::Serves(QSize size) const {
  if (IsFull || Levels.empty()) return true;
  return size.width() <= Levels.front().width() && size.height() <= Levels.front().height();
}

qint64 PictureStore::Source::FullBytes() const {
  return IsFull && !IsAwaited && !Levels.empty() ? Levels.front().sizeInBytes() : 0;
}

PictureStore::PictureStore() : scaled_(kLeastCacheRoom) {}

PictureStore::Source PictureStore::ReadSource(const QString& file) const {
  Source source;
  if (file.endsWith(".svg", Qt::CaseInsensitive)) {
    source.Drawing = VectorDrawing::Read(file);
  } else if (QImage image(file); !image.isNull()) {
    // The formats that the painter blends without a conversion.
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                            : QImage::Format_RGB32);
    // Brothers are for sizes above those of the file before them.
    source.Levels = IsBrother(file) ? std::vector{std::move(image)} : LevelsOf(std::move(image));
  }
  return source;
}

// What is at hand of a file, or all of it.
PictureStore::Source& PictureStore::SourceOf(const QString& file) {
  const auto found = sources_.find(file);
  if (found != sources_.end()) {
    found->second.Used = ++uses_;
    return found->second;
  }
  Source& source = sources_.emplace(file, ReadSource(file)).first->second;
  source.Used = ++uses_;
  KeepWithinRoom(file);
  return source;
}

PictureStore::Source& PictureStore::FullSourceOf(const QString& file) {
  const auto found = sources_.find(file);
  if (found != sources_.end() && !found->second.IsFull) sources_.erase(found);
  return SourceOf(file);
}

void PictureStore::Read(const QString& file) {
  VariantsOf(file);  // looks for many files
  if (sources_.contains(file)) return;
  if (SourceOf(file).FullBytes() > 0) DropFull(file);
}

// The latest picture stays in full whatever its size, so that it can be drawn.
void PictureStore::KeepWithinRoom(const QString& latest) {
  qint64 bytes = 0;
  for (const auto& [file, source] : sources_) bytes += source.FullBytes();
  while (bytes > kFullRoom) {
    const QString* oldest = nullptr;
    for (const auto& [file, source] : sources_) {
      if (file == latest || source.FullBytes() == 0) continue;
      if (oldest == nullptr || source.Used < sources_.at(*oldest).Used) oldest = &file;
    }
    if (oldest == nullptr) return;
    bytes -= sources_.at(*oldest).FullBytes();
    DropFull(QString(*oldest));
  }
}

// Brothers go whole: the file itself serves all smaller sizes.
void PictureStore::DropFull(const QString& file) {
  if (IsBrother(file) || sources_.at(file).Levels.size() == 1) {
    sources_.erase(file);
    return;
  }
  Source& source = sources_.at(file);
  source.Levels.erase(source.Levels.begin());
  source.IsFull = false;
}

qint64 PictureStore::BytesOfSources() const {
  qint64 bytes = 0;
  for (const auto& [file, source] : sources_) {
    for (const QImage& level : source.Levels) bytes += level.sizeInBytes();
  }
  return bytes;
}

qint64 PictureStore::BytesOfScaled() const {
  return qint64{1024} * scaled_.totalCost();
}

QSize PictureStore::NaturalSize(const QString& file) {
  if (QFile::exists(file) && !file.endsWith(".svg", Qt::CaseInsensitive)) {
    const QSize size = QImageReader(file).size();
    return size.isValid() ? size : QSize();
  }
  const Source& source = SourceOf(QFile::exists(file) ? file : DrawingName(file));
  return source.Drawing ? source.Drawing->Size() : QSize();
}

bool PictureStore::IsOpaque(const QString& file) {
  bool isRead = false;
  for (const Variant& variant : VariantsOf(file)) {
    const auto source = sources_.find(variant.File);
    if (source == sources_.end()) continue;
    const std::vector<QImage>& levels = source->second.Levels;
    if (levels.empty() || levels.back().hasAlphaChannel()) return false;
    isRead = true;
  }
  return isRead;
}

const std::vector<PictureStore::Variant>& PictureStore::VariantsOf(const QString& file) {
  const auto found = variants_.find(file);
  if (found != variants_.end()) return found->second;
  const QSize natural = NaturalSize(file);
  std::vector<Variant> variants;
  if (QFile::exists(file)) variants.push_back({file, natural});
  for (const int scale : {2, 3, 4}) {
    QString variant = VariantOf(file, scale);
    if (!variant.isEmpty()) variants.push_back({variant, natural * scale});
  }
  if (const QString drawing = DrawingName(file);
      drawing != file && QFile::exists(drawing) && SourceOf(drawing).Drawing) {
    variants.push_back({drawing, {}});
  }
  return variants_.emplace(file, std::move(variants)).first->second;
}

QString PictureStore::VariantFor(const QString& file, QSize size) {
  const std::vector<Variant>& variants = VariantsOf(file);
  if (variants.empty()) return file;
  const auto covers = [size](const Variant& variant) {
    return variant.Covers.width() >= size.width() && variant.Covers.height() >= size.height();
  };
  const auto chosen = std::find_if(variants.begin(), variants.end() - 1, covers);
  return chosen->File;
}

QString PictureStore::FileFor(const QString& file, const QString& best, QSize size,
                              Reading reading) {
  if (IsAtHand({best, size})) return best;
  const std::vector<Variant>& variants = VariantsOf(file);
  if (reading == Reading::AtOnce || variants.empty()) {
    FullSourceOf(best);
    return best;
  }
  BringToHand(file);
  const auto isRead = [this](const Variant& variant) { return sources_.contains(variant.File); };
  return std::find_if(variants.rbegin(), variants.rend(), isRead)->File;
}

void PictureStore::BringToHand(const QString& file) {
  const std::vector<Variant>& variants = VariantsOf(file);
  const auto isRead = [this](const Variant& variant) { return sources_.contains(variant.File); };
  if (variants.empty() || std::any_of(variants.begin(), variants.end(), isRead)) return;
  SourceOf(variants.front().File);
}

// Whether it can be made without reading a file.
bool PictureStore::IsAtHand(const SizedFile& best) const {
  const auto source = sources_.find(best.File);
  return source != sources_.end() && source->second.Serves(best.Size);
}

// Whether making it takes hardly longer than drawing it, or would have to be done each time.
bool PictureStore::IsQuick(const SizedFile& best) const {
  if (CostOf(best.Size) > scaled_.maxCost() || scaled_.maxCost() <= kQuickRoom) return true;
  const bool isDrawing = sources_.at(best.File).Drawing != nullptr;
  return AreaOf(best.Size) <= (isDrawing ? kQuickDrawing : kQuickPicture);
}

void PictureStore::Want(const WantedPicture& picture) {
  if (std::find(wanted_.begin(), wanted_.end(), picture) != wanted_.end()) return;
  wanted_.push_back(picture);
  if (wanted_.size() == 1 && OnWanted) OnWanted();
}

void PictureStore::ReadWanted() {
  for (qint64 pixels = 0; !wanted_.empty() && pixels < kScaledAtOnce;) {
    const auto [file, best, isPart] = wanted_.front();
    if (!IsAtHand(best)) {
      if (pixels > 0) return;  // reading takes long enough by itself
      FullSourceOf(best.File).IsAwaited = true;
      pixels = kScaledAtOnce;
    }
    wanted_.pop_front();
    if (!isPart) ScaledOf(best);
    pixels += AreaOf(best.Size);
    finer_[file] = ++version_;
  }
}

std::uint64_t PictureStore::VersionOf(const QString& file) const {
  const auto found = finer_.find(file);
  return found == finer_.end() ? 0 : found->second;
}

QPixmap PictureStore::Render(const QString& file, QSize size) {
  Source& source = SourceOf(file);
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
  const SizedFile best{VariantFor(file, size), size};
  if (!scaled_.contains(best)) FileFor(file, best.File, size, Reading::AtOnce);
  return ScaledOf(best);
}

QPixmap PictureStore::ScaledOf(const SizedFile& key) {
  return Kept(key.File, key.Size, [&] { return Render(key.File, key.Size); });
}

QPixmap PictureStore::Kept(const QString& name, QSize size, const std::function<QPixmap()>& make) {
  const SizedFile key{name, size};
  if (const QPixmap* known = scaled_.object(key)) return *known;
  QPixmap pixmap = make();
  scaled_.insert(key, new QPixmap(pixmap), CostOf(size));
  return pixmap;
}

// The largest of the sizes that are kept.
const QPixmap* PictureStore::OtherSizeOf(const QString& file) const {
  const QPixmap* largest = nullptr;
  for (const SizedFile& key : scaled_.keys()) {
    if (key.File != file) continue;
    const QPixmap* other = scaled_.object(key);
    if (largest == nullptr || other->width() > largest->width()) largest = other;
  }
  return largest;
}

void PictureStore::DrawSource(QPainter& painter, const QString& file, const QRectF& place) {
  Source& source = SourceOf(file);
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
  Source& source = SourceOf(file);
  source.IsAwaited = false;
  if (source.Drawing) source.Drawing->Paint(painter, target);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  // The same level whether or not a larger one is at hand.
  if (!source.Levels.empty()) painter.drawImage(target, source.LevelFor(target.size()));
  painter.restore();
}

// Draws what is at hand of just this file without keeping it. False if nothing is.
bool PictureStore::DrawCoarse(QPainter& painter, const QString& file, const QRect& target) {
  Source& source = SourceOf(file);
  if (source.Drawing) {
    const QPixmap* other = OtherSizeOf(file);
    if (other != nullptr) painter.drawPixmap(target, *other);
    return other != nullptr;
  }
  if (source.Levels.empty()) return true;
  const QImage& level = source.LevelFor(target.size());
  // Points that are enlarged would look like another picture.
  const bool isEnlarged = level.width() < target.width() || level.height() < target.height();
  const bool smooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, isEnlarged);
  painter.drawImage(target, level);
  painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
  return true;
}

void PictureStore::DrawWhole(QPainter& painter, const QString& file, const QRect& target,
                             Reading reading) {
  const SizedFile best{VariantFor(file, target.size()), target.size()};
  if (!scaled_.contains(best)) {
    const QString chosen = FileFor(file, best.File, target.size(), reading);
    const bool isReady = IsAtHand(best) && (reading == Reading::AtOnce || IsQuick(best));
    if (!isReady && DrawCoarse(painter, chosen, target)) return Want({file, best});
  }
  painter.drawPixmap(target.topLeft(), ScaledOf(best));
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
    const QString variant = VariantFor(file, size);
    FullSourceOf(variant);
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
    const SizedFile best{VariantFor(file, target.size()), target.size()};
    DrawPart(painter, FileFor(file, best.File, target.size(), reading), target, part);
    if (!IsAtHand(best)) Want({file, best, true});
  } else {
    DrawWhole(painter, file, target, reading);
  }
  painter.setWorldTransform(world);
}

}  // namespace orrerix
