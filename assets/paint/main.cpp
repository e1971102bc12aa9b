// SPDX-License-Identifier: MIT
#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QTextStream>
#include <utility>

#include "info_box.h"
#include "logo.h"
#include "space.h"
#include "station_strip.h"
#include "system_cells.h"

namespace {

// A finer picture is shown where each of its pixels is small: what a lower quality leaves out is
// not seen there.
constexpr int JpegQuality = 85;
constexpr int FineJpegQuality = 76;

// Writes pictures of one scale below a folder and remembers whether one could not be written.
class Gallery {
 public:
  Gallery(const QString& folder, int scale, QString only)
      : folder_(folder), scale_(scale), only_(std::move(only)) {}

  bool Complete() const { return complete_; }

  // `paint` answers the picture at a scale. Its name gets "@2x" and so on before its ending when
  // the scale is not 1.
  template <typename Paint>
  void Hang(const QString& name, Paint paint) {
    if (!name.startsWith(only_)) return;
    const bool isJpeg = name.endsWith(QLatin1String(".jpg"));
    const int quality = !isJpeg ? -1 : scale_ == 1 ? JpegQuality : FineJpegQuality;
    const QString path = folder_.filePath(ScaledName(name));
    folder_.mkpath(QFileInfo(name).path());
    if (paint(scale_).save(path, nullptr, quality)) return;
    QTextStream(stderr) << "cannot write " << path << '\n';
    complete_ = false;
  }

 private:
  QString ScaledName(QString name) const {
    if (scale_ == 1) return name;
    return name.insert(name.lastIndexOf('.'), QStringLiteral("@%1x").arg(scale_));
  }

  QDir folder_;
  int scale_;
  QString only_;
  bool complete_ = true;
};

QString SystemName(int picture) {
  return QStringLiteral("systems/%1.jpg").arg(picture, 2, 10, QLatin1Char('0'));
}

void PaintSpace(Gallery& gallery) {
  gallery.Hang(QStringLiteral("star_map.jpg"), orrerix::PaintUniverse);
  gallery.Hang(QStringLiteral("hintergrund.png"), orrerix::PaintBackgroundTile);
  gallery.Hang(QStringLiteral("blanko.jpg"), orrerix::PaintEmptySpace);
  for (int i = 0; i < orrerix::SystemPictures; ++i) {
    gallery.Hang(SystemName(i), [i](int scale) { return orrerix::PaintSystem(i, scale); });
  }
}

void PaintPanel(Gallery& gallery) {
  gallery.Hang(QStringLiteral("itac_head.png"), orrerix::PaintHeadBand);
  gallery.Hang(QStringLiteral("itac_background.jpg"), orrerix::PaintInfoBackground);
  gallery.Hang(QStringLiteral("logo.png"), orrerix::PaintLogo);
  gallery.Hang(QStringLiteral("station/strip.jpg"), orrerix::PaintStationStrip);
}

}  // namespace

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  QCommandLineParser parser;
  parser.setApplicationDescription(QStringLiteral("Paints the pictures of Orrerix."));
  parser.addHelpOption();
  parser.addPositionalArgument(QStringLiteral("DIR"), QStringLiteral("where the pictures go"));
  const QCommandLineOption scaleOption(QStringLiteral("scale"),
                                       QStringLiteral("pixels for each natural pixel, 1 to 4"),
                                       QStringLiteral("N"), QStringLiteral("1"));
  const QCommandLineOption onlyOption(QStringLiteral("only"),
                                      QStringLiteral("only pictures whose names begin so"),
                                      QStringLiteral("NAME"));
  parser.addOptions({scaleOption, onlyOption});
  parser.process(application);
  const int scale = parser.value(scaleOption).toInt();
  if (parser.positionalArguments().size() != 1 || scale < 1 || scale > 4) parser.showHelp(2);

  Gallery gallery(parser.positionalArguments().constFirst(), scale, parser.value(onlyOption));
  PaintSpace(gallery);
  PaintPanel(gallery);
  return gallery.Complete() ? 0 : 1;
}
