// SPDX-License-Identifier: MIT
#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QImageWriter>
#include <QTextStream>
#include <array>
#include <utility>

#include "info_box.h"
#include "logo.h"
#include "space.h"
#include "station_strip.h"
#include "system_cells.h"

namespace {

// JPEG quality of a picture at 1 to 4 times its size. A finer picture is shown where each of its
// pixels is small: what a lower quality leaves out is not seen there.
using Qualities = std::array<int, 4>;
constexpr Qualities Single = {85, 80, 74, 66};
constexpr Qualities Faint = {95, 95, 95, 95};      // hardly brighter than its ground
constexpr Qualities OneOfMany = {70, 50, 52, 52};  // the systems share most of the room

// What is lossless in its natural size need not be in the finer ones.
enum class Finer { Same, Jpeg };

// Writes pictures of one scale below a folder and remembers whether one could not be written.
class Gallery {
 public:
  Gallery(const QString& folder, int scale, QString only)
      : folder_(folder), scale_(scale), only_(std::move(only)) {}

  bool Complete() const { return complete_; }

  // `paint` answers the picture at a scale. Its name gets "@2x" and so on before its ending when
  // the scale is not 1.
  template <typename Paint>
  void Hang(const QString& name, Paint paint, const Qualities& qualities = Single,
            Finer finer = Finer::Same) {
    if (!name.startsWith(only_)) return;
    const QString path = folder_.filePath(ScaledName(name, finer));
    folder_.mkpath(QFileInfo(name).path());
    QImageWriter writer(path);
    if (path.endsWith(QLatin1String(".jpg"))) {
      writer.setQuality(qualities[static_cast<std::size_t>(scale_) - 1]);
      writer.setOptimizedWrite(true);
      writer.setProgressiveScanWrite(true);
    }
    if (writer.write(paint(scale_))) return;
    QTextStream(stderr) << "cannot write " << path << '\n';
    complete_ = false;
  }

 private:
  QString ScaledName(const QString& name, Finer finer) const {
    if (scale_ == 1) return name;
    const auto ending = name.lastIndexOf('.');
    return name.left(ending) + QStringLiteral("@%1x").arg(scale_) +
           (finer == Finer::Jpeg ? QStringLiteral(".jpg") : name.mid(ending));
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
  gallery.Hang(QStringLiteral("hintergrund.png"), orrerix::PaintBackgroundTile, Faint, Finer::Jpeg);
  gallery.Hang(QStringLiteral("blanko.jpg"), orrerix::PaintEmptySpace);
  for (int i = 0; i < orrerix::SystemPictures; ++i) {
    gallery.Hang(
        SystemName(i), [i](int scale) { return orrerix::PaintSystem(i, scale); }, OneOfMany);
  }
}

void PaintPanel(Gallery& gallery) {
  gallery.Hang(QStringLiteral("itac_head.png"), orrerix::PaintHeadBand);
  gallery.Hang(QStringLiteral("itac_background.jpg"), orrerix::PaintInfoBackground);
  gallery.Hang(QStringLiteral("logo.png"), orrerix::PaintLogo, Single, Finer::Jpeg);
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
