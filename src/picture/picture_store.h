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

  // A picture in a size in device pixels. Pictures of one name are of the same thing; where they
  // differ by more than their size, the detail says by what.
  struct Sized {
    QString Name;
    QSize Size;
    QString Detail = {};
    bool operator==(const Sized&) const = default;
    friend size_t qHash(const Sized& key, size_t seed = 0) {
      return qHashMulti(seed, key.Name, key.Size.width(), key.Size.height(), key.Detail);
    }
  };

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

  // Draws a picture that the caller makes, unless it is kept from before; like all scaled ones it
  // is only kept while there is room. If one of its name is kept in nearly its size, that is drawn
  // first, and the right one is wanted: `make` is called then. The painter is in device pixels.
  void DrawMade(QPainter& painter, const Sized& picture, QPoint corner,
                const std::function<QPixmap()>& make);

  // Its own size, or that of the drawing in its place; empty if the file is no picture.
  QSize NaturalSize(const QString& file) { return sources_.NaturalSize(file); }

  // Whether the file has been read, and neither it nor any brother of it that has been read lets
  // anything shine through.
  bool IsOpaque(const QString& file) { return sources_.IsOpaque(file); }

  // Called when a picture is wanted and none was before. ReadWanted reads the file of one of them,
  // or scales some of those whose files have been read, for callers that draw next. A caller that
  // waits for nothing calls it again while another thread reads the file: then it returns false.
  enum class Waiting { ForFiles, ForNothing };
  std::function<void()> OnWanted;
  bool IsWanting() const { return !wanted_.empty(); }
  bool ReadWanted(Waiting waiting = Waiting::ForFiles);

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
  struct WantedPicture {
    QString Name;         // as callers know it
    Sized Best;           // of a file the variant that serves the size
    bool IsPart = false;  // of which no scaled picture is kept
    std::function<QPixmap()> Make = {};
  };

  QString FileFor(const QString& file, const Sized& best, Reading reading);
  void Want(const WantedPicture& picture);
  bool IsQuick(const Sized& best);
  void MakeRoomFor(const QPainter& painter);
  // These draw out of just this file, and of what is at hand of it.
  QPixmap Render(const QString& file, QSize size);
  QPixmap ScaledOf(const Sized& key);
  QPixmap Kept(const Sized& key, const std::function<QPixmap()>& make);
  const QPixmap* OtherSizeOf(const QString& name) const;
  bool DrawOtherSize(QPainter& painter, const QString& name, const QRect& target) const;
  void DrawSource(QPainter& painter, const QString& file, const QRectF& place);
  void DrawPart(QPainter& painter, const QString& file, const QRect& target, const QRect& part);
  bool DrawCoarse(QPainter& painter, const QString& file, const QString& best, const QRect& target);
  void DrawWhole(QPainter& painter, const QString& file, const QRect& target, Reading reading);

  PictureSources sources_;
  std::deque<WantedPicture> wanted_;
  std::unordered_map<QString, std::uint64_t> finer_;  // since which version
  QCache<Sized, QPixmap> scaled_;
  std::uint64_t version_ = 1;
};

}  // namespace orrerix
