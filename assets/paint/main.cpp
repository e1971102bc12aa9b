// SPDX-License-Identifier: MIT
#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
#include <QTextStream>

#include "borders.h"
#include "info_box.h"
#include "logo.h"
#include "space.h"
#include "system_cells.h"

namespace {

constexpr int JpegQuality = 85;

// Writes pictures below one folder and remembers whether one could not be written.
class Gallery {
 public:
  explicit Gallery(const QString& folder) : folder_(folder) {}

  bool Complete() const { return complete_; }

  void Hang(const QString& name, const QImage& picture) {
    const QString path = folder_.filePath(name);
    folder_.mkpath(QFileInfo(name).path());
    if (picture.save(path, nullptr, name.endsWith(QLatin1String(".jpg")) ? JpegQuality : -1))
      return;
    QTextStream(stderr) << "cannot write " << path << '\n';
    complete_ = false;
  }

 private:
  QDir folder_;
  bool complete_ = true;
};

QString SystemName(int picture) {
  return QStringLiteral("systems/%1.jpg").arg(picture, 2, 10, QLatin1Char('0'));
}

void PaintSpace(Gallery& gallery, int scale) {
  gallery.Hang(QStringLiteral("star_map.jpg"), orrerix::PaintUniverse(scale));
  gallery.Hang(QStringLiteral("hintergrund.png"), orrerix::PaintBackgroundTile(scale));
  gallery.Hang(QStringLiteral("blanko.jpg"), orrerix::PaintEmptySpace(scale));
  for (int i = 0; i < orrerix::SystemPictures; ++i) {
    gallery.Hang(SystemName(i), orrerix::PaintSystem(i, scale));
  }
}

void PaintBorders(Gallery& gallery, int scale) {
  for (int set = 0; set < orrerix::BorderSets; ++set) {
    for (int piece = 0; piece < orrerix::BorderPieces; ++piece) {
      gallery.Hang(QStringLiteral("rahmen/set%1_%2.png").arg(set).arg(piece),
                   orrerix::PaintBorderPiece(set, piece, scale));
    }
  }
}

void PaintPanel(Gallery& gallery, int scale) {
  gallery.Hang(QStringLiteral("itac_head.png"), orrerix::PaintHeadBand(scale));
  gallery.Hang(QStringLiteral("itac_background.jpg"), orrerix::PaintInfoBackground(scale));
  gallery.Hang(QStringLiteral("logo.png"), orrerix::PaintLogo(scale));
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
  parser.addOption(scaleOption);
  parser.process(application);
  const int scale = parser.value(scaleOption).toInt();
  if (parser.positionalArguments().size() != 1 || scale < 1 || scale > 4) parser.showHelp(2);

  Gallery gallery(parser.positionalArguments().constFirst());
  PaintSpace(gallery, scale);
  PaintBorders(gallery, scale);
  PaintPanel(gallery, scale);
  return gallery.Complete() ? 0 : 1;
}
