// SPDX-License-Identifier: MIT
// Paints what must be pixels although it is a drawing: pictures that style sheets name, and the
// icon of the programs for Windows.
#include <QBuffer>
#include <QDataStream>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextStream>
#include <array>

#include "picture/vector_drawing.h"

namespace {

using orrerix::VectorDrawing;

QImage Painted(const VectorDrawing& drawing, QSize size) {
  QImage image(size, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  drawing.Paint(painter, QRectF(QPointF(0, 0), size));
  return image;
}

bool PaintScales(const QDir& pictures, const QString& name) {
  const auto drawing = VectorDrawing::Read(pictures.filePath(name + ".svg"));
  if (!drawing) return false;
  for (const int scale : {1, 2, 3, 4}) {
    const QString ending = scale == 1 ? QString(".png") : QStringLiteral("@%1x.png").arg(scale);
    if (!Painted(*drawing, drawing->Size() * scale).save(pictures.filePath(name + ending))) {
      return false;
    }
  }
  return true;
}

// A directory of PNG pictures, as Windows has read it since Vista.
bool WriteIcon(const VectorDrawing& drawing, const QString& file) {
  constexpr std::array<int, 7> sides = {16, 24, 32, 48, 64, 128, 256};
  constexpr int headSize = 6;
  constexpr int entrySize = 16;
  QByteArray pictures;
  QByteArray head;
  QDataStream stream(&head, QIODevice::WriteOnly);
  stream.setByteOrder(QDataStream::LittleEndian);
  stream << quint16(0) << quint16(1) << quint16(sides.size());
  const auto start = static_cast<qsizetype>(headSize + entrySize * sides.size());
  for (const int side : sides) {
    QByteArray picture;
    QBuffer buffer(&picture);
    Painted(drawing, {side, side}).save(&buffer, "PNG");
    const auto inByte = static_cast<quint8>(side % 256);  // 256 is written as 0
    stream << inByte << inByte << quint16(0) << quint16(1) << quint16(32)
           << static_cast<quint32>(picture.size()) << static_cast<quint32>(start + pictures.size());
    pictures += picture;
  }
  QFile icon(file);
  return icon.open(QIODevice::WriteOnly) && icon.write(head + pictures) > 0;
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  if (argc != 3) {
    QTextStream(stderr) << "paint-drawings PICTURES ICON\n";
    return 2;
  }
  const QDir pictures(argv[1]);
  const auto icon = VectorDrawing::Read(pictures.filePath("application.svg"));
  const bool isComplete = icon && WriteIcon(*icon, argv[2]) &&
                          PaintScales(pictures, "tools/check_off") &&
                          PaintScales(pictures, "tools/check_on");
  return isComplete ? 0 : 1;
}
