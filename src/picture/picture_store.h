// SPDX-License-Identifier: MIT
// All pictures that the windows show, in the sizes in use.
#pragma once

#include <QCache>
#include <QPainter>
#include <QPixmap>
#include <QString>
#include <cstdint>
#include <deque>
#include <functional>
#include <unordered_map>

#include "picture/picture_sources.h"

namespace orrerix {

// A picture file may have finer brothers, painted at two to four times its size: "name@2x.jpg"
// beside "name.jpg", or beside "name.png" where there is no "name@2x.png". The finest of all is a
// drawing of the same name, "name.svg", which may also stand in for a file that is not there.
// Whatever size a picture is shown in, it is made out of the smallest of them that need not be
// enlarged.
//
// Pictures take far more memory than their files, so only those that were used last are kept in
// full, and of the others what serves sizes up to half of theirs. They are read again when they are
// needed.
class PictureStore {
 public:
  // Whether drawing waits until the file is read that the size asks for, and until a large picture
  // has been scaled smoothly. Where it does not, what is at hand is drawn by the quickest means,
  // and the picture is wanted.
  enum class Reading { AtOnce, Later };

  PictureStore();
  PictureStore(const PictureStore&) = delete;
  PictureStore& operator=(const PictureStore&) = delete;

  // Draws a picture stretched over `place` (the painter's coordinates). On a raster device it
  // goes to whole pixels, so that it is sharp and neighbours meet without a seam; on a vector
  // device a drawing stays a drawing. A file that is no picture draws nothing. Of a picture that is
  // hidden for the most part only `seen` is worked out.
  void Draw(QPainter& painter, const QString& file, const QRectF& place, const QRectF& seen,
            Reading reading = Reading::AtOnce);
  void Draw(QPainter& painter, const QString& file, const QRectF& place) {
    Draw(painter, file, place, place);
  }

  // The file, or the brother of it, that a size in device pixels is made out of.
  QString VariantFor(const QString& file, QSize size) { return sources_.VariantFor(file, size); }

  // The picture in a size in device pixels, smoothly made out of the next larger level.
  QPixmap Scaled(const QString& file, QSize size);

  // A picture that the caller makes, unless one of this name and size (device pixels) is kept from
  // before; like all scaled ones it is only kept while there is room.
  QPixmap Kept(const QString& name, QSize size, const std::function<QPixmap()>& make);

  // Its own size, or that of the drawing in its place; empty if the file is no picture.
  QSize NaturalSize(const QString& file) { return sources_.NaturalSize(file); }

  // Whether the file has been read, and neither it nor any brother of it that has been read lets
  // anything shine through.
  bool IsOpaque(const QString& file) { return sources_.IsOpaque(file); }

  // Called when a picture is wanted and none was before. ReadWanted reads the file of one of them,
  // or scales some of those whose files have been read, for callers that draw next. A caller that
  // waits for nothing calls it again while another thread reads the file.
  enum class Waiting { ForFiles, ForNothing };
  std::function<void()> OnWanted;
  bool IsWanting() const { return !wanted_.empty(); }
  void ReadWanted(Waiting waiting = Waiting::ForFiles);

  // Another number whenever pictures that were drawn before may look finer now, and the one since
  // which a picture does; zero for one that looks as ever.
  std::uint64_t Version() const { return version_; }
  std::uint64_t VersionOf(const QString& file) const;

  // Reads a picture of which nothing has been read. It will be drawn next.
  void BringToHand(const QString& file) { sources_.BringToHand(file); }

  // Reads a picture that will be needed soon, for sizes up to half of its own.
  void Read(const QString& file) { sources_.Read(file); }

  // What the pictures that were read take, in bytes.
  qint64 BytesOfSources() const { return sources_.Bytes(); }

  // What is kept of pictures in the sizes that were drawn, in bytes.
  qint64 BytesOfScaled() const;

  // Where Draw puts a picture, in the device's own coordinates.
  static QRectF PlaceOnDevice(const QPainter& painter, const QRectF& place);

 private:
  struct SizedFile {
    QString File;
    QSize Size;
    bool operator==(const SizedFile&) const = default;
    friend size_t qHash(const SizedFile& key, size_t seed = 0) {
      return qHashMulti(seed, key.File, key.Size.width(), key.Size.height());
    }
  };

  struct WantedPicture {
    QString File;         // as callers know it
    SizedFile Best;       // the variant that serves the size
    bool IsPart = false;  // of which no scaled picture is kept
    bool operator==(const WantedPicture&) const = default;
  };

  QString FileFor(const QString& file, const SizedFile& best, Reading reading);
  void Want(const WantedPicture& picture);
  bool IsQuick(const SizedFile& best);
  void MakeRoomFor(const QPainter& painter);
  // These draw out of just this file, and of what is at hand of it.
  QPixmap Render(const QString& file, QSize size);
  QPixmap ScaledOf(const SizedFile& key);
  const QPixmap* OtherSizeOf(const QString& file) const;
  void DrawSource(QPainter& painter, const QString& file, const QRectF& place);
  void DrawPart(QPainter& painter, const QString& file, const QRect& target, const QRect& part);
  bool DrawCoarse(QPainter& painter, const QString& file, const QString& best,
                  const QRect& target);
  void DrawWhole(QPainter& painter, const QString& file, const QRect& target, Reading reading);

  PictureSources sources_;
  std::deque<WantedPicture> wanted_;
  std::unordered_map<QString, std::uint64_t> finer_;  // since which version
  QCache<SizedFile, QPixmap> scaled_;
  std::uint64_t version_ = 1;
};

}  // namespace orrerix
