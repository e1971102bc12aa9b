// SPDX-License-Identifier: MIT
// The picture files that have been read.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>
#include <cstdint>
#include <future>
#include <memory>
#include <unordered_map>
#include <vector>

#include "picture/vector_drawing.h"

namespace orrerix {

// What is at hand of a file: pictures or a drawing, or neither of a file that is no picture.
struct PictureSource {
  std::vector<QImage> Levels;  // each in half the size of the one before
  std::unique_ptr<VectorDrawing> Drawing;
  bool IsFull = true;      // the first level is the picture itself, and not the next one
  bool IsAwaited = false;  // it was read because it is wanted, and has not been drawn yet
  std::uint64_t Used = 0;  // when; the latest has the highest number

  // Reads a file, whichever thread this is.
  static PictureSource Read(const QString& file);

  // The smallest level that need not be enlarged to this size; the first if all must be.
  const QImage& LevelFor(QSize size) const;

  // Whether a picture of this size is as fine as the file can make it.
  bool Serves(QSize size) const;

  // What dropping the picture itself would set free; nothing while it is awaited.
  qint64 FullBytes() const;
};

// Reads files with their brothers (picture_store.h) and keeps of them what there is room for: those
// that were used last in full, and of the others what serves sizes up to half of theirs.
class PictureSources {
 public:
  // The brother of a file, or the file itself, that a size in device pixels is made out of.
  QString VariantFor(const QString& file, QSize size);

  // The finest brother of which something is at hand. Reads one if there is none.
  QString FinestAtHand(const QString& file);

  // Its own size, or that of the drawing in its place; empty if the file is no picture.
  QSize NaturalSize(const QString& file);

  // Whether the file has been read, and neither it nor any brother of it that has been read lets
  // anything shine through.
  bool IsOpaque(const QString& file);

  // Whether there is something of just this file that serves the size without being read.
  bool IsAtHand(const QString& file, QSize size) const;

  // What is at hand of just this file, or all of it if nothing is. The reference holds until the
  // next call.
  PictureSource& SourceOf(const QString& file);

  // All of just this file.
  PictureSource& FullSourceOf(const QString& file);

  // Begins to read all of just this file in a thread of its own. False until that is done, then
  // the source is there, as one that is awaited.
  bool AwaitFull(const QString& file);

  // Reads a picture of which nothing has been read. It will be drawn next.
  void BringToHand(const QString& file);

  // Reads a picture that will be needed soon, for sizes up to half of its own.
  void Read(const QString& file);

  // In bytes.
  qint64 Bytes() const;

 private:
  struct Variant {
    QString File;
    QSize Covers;  // the largest size that it need not be enlarged to; a drawing has none
  };
  struct Reading {
    QString File;
    std::future<PictureSource> Source;
  };

  PictureSource& Keep(const QString& file, PictureSource source);
  void KeepWithinRoom(const QString& latest);
  void DropFull(const QString& file);
  const std::vector<Variant>& VariantsOf(const QString& file);

  std::unordered_map<QString, PictureSource> sources_;
  std::unordered_map<QString, std::vector<Variant>> variants_;  // the smallest first
  Reading reading_;
  std::uint64_t uses_ = 0;
};

}  // namespace orrerix
