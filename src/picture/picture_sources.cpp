// SPDX-License-Identifier: MIT
#include "picture/picture_sources.h"

#include <QFile>
#include <QImageReader>
#include <QThreadPool>
#include <algorithm>
#include <chrono>
#include <exception>
#include <utility>

namespace orrerix {
namespace {

// Room for pictures that are kept in full, in bytes.
constexpr qint64 kFullRoom = 8 * 1024 * 1024;

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

PictureSource PictureSource::Read(const QString& file) {
  PictureSource source;
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

const QImage& PictureSource::LevelFor(QSize size) const {
  const auto tooSmall = std::find_if(Levels.begin() + 1, Levels.end(), [size](const QImage& level) {
    return level.width() < size.width() || level.height() < size.height();
  });
  return *(tooSmall - 1);
}

bool PictureSource::Serves(QSize size) const {
  if (IsFull || Levels.empty()) return true;
  return size.width() <= Levels.front().width() && size.height() <= Levels.front().height();
}

qint64 PictureSource::FullBytes() const {
  return IsFull && !IsAwaited && !Levels.empty() ? Levels.front().sizeInBytes() : 0;
}

// What is at hand of a file, or all of it.
PictureSource& PictureSources::SourceOf(const QString& file) {
  const auto found = sources_.find(file);
  if (found == sources_.end()) return Keep(file, PictureSource::Read(file));
  found->second.Used = ++uses_;
  return found->second;
}

PictureSource& PictureSources::FullSourceOf(const QString& file) {
  const auto found = sources_.find(file);
  if (found != sources_.end() && !found->second.IsFull) sources_.erase(found);
  return SourceOf(file);
}

PictureSource& PictureSources::Keep(const QString& file, PictureSource source) {
  PictureSource& kept = sources_.insert_or_assign(file, std::move(source)).first->second;
  kept.Used = ++uses_;
  KeepWithinRoom(file);
  return kept;
}

bool PictureSources::AwaitFull(const QString& file) {
  if (reading_.File != file) {
    auto done = std::make_shared<std::promise<PictureSource>>();
    reading_ = {file, done->get_future()};
    QThreadPool::globalInstance()->start([done, file] {
      try {
        done->set_value(PictureSource::Read(file));
      } catch (...) {
        done->set_exception(std::current_exception());
      }
    });
  }
  if (reading_.Source.wait_for(std::chrono::seconds(0)) != std::future_status::ready) return false;
  PictureSource source = reading_.Source.get();
  source.IsAwaited = true;
  reading_ = {};
  Keep(file, std::move(source));
  return true;
}

void PictureSources::Read(const QString& file) {
  VariantsOf(file);  // looks for many files
  if (sources_.contains(file)) return;
  if (SourceOf(file).FullBytes() > 0) DropFull(file);
}

// The latest picture stays in full whatever its size, so that it can be drawn.
void PictureSources::KeepWithinRoom(const QString& latest) {
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
void PictureSources::DropFull(const QString& file) {
  if (IsBrother(file) || sources_.at(file).Levels.size() == 1) {
    sources_.erase(file);
    return;
  }
  PictureSource& source = sources_.at(file);
  source.Levels.erase(source.Levels.begin());
  source.IsFull = false;
}

qint64 PictureSources::Bytes() const {
  qint64 bytes = 0;
  for (const auto& [file, source] : sources_) {
    for (const QImage& level : source.Levels) bytes += level.sizeInBytes();
  }
  return bytes;
}

QSize PictureSources::NaturalSize(const QString& file) {
  if (QFile::exists(file) && !file.endsWith(".svg", Qt::CaseInsensitive)) {
    const QSize size = QImageReader(file).size();
    return size.isValid() ? size : QSize();
  }
  const PictureSource& source = SourceOf(QFile::exists(file) ? file : DrawingName(file));
  return source.Drawing ? source.Drawing->Size() : QSize();
}

bool PictureSources::IsOpaque(const QString& file) {
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

const std::vector<PictureSources::Variant>& PictureSources::VariantsOf(const QString& file) {
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

QString PictureSources::VariantFor(const QString& file, QSize size) {
  const std::vector<Variant>& variants = VariantsOf(file);
  if (variants.empty()) return file;
  const auto covers = [size](const Variant& variant) {
    return variant.Covers.width() >= size.width() && variant.Covers.height() >= size.height();
  };
  const auto chosen = std::find_if(variants.begin(), variants.end() - 1, covers);
  return chosen->File;
}

QString PictureSources::FinestAtHand(const QString& file) {
  const std::vector<Variant>& variants = VariantsOf(file);
  if (variants.empty()) {
    SourceOf(file);
    return file;
  }
  BringToHand(file);
  const auto isRead = [this](const Variant& variant) { return sources_.contains(variant.File); };
  return std::find_if(variants.rbegin(), variants.rend(), isRead)->File;
}

void PictureSources::BringToHand(const QString& file) {
  const std::vector<Variant>& variants = VariantsOf(file);
  const auto isRead = [this](const Variant& variant) { return sources_.contains(variant.File); };
  if (variants.empty() || std::any_of(variants.begin(), variants.end(), isRead)) return;
  SourceOf(variants.front().File);
}

bool PictureSources::IsAtHand(const QString& file, QSize size) const {
  const auto source = sources_.find(file);
  return source != sources_.end() && source->second.Serves(size);
}

}  // namespace orrerix
