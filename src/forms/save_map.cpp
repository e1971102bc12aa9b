// SPDX-License-Identifier: MIT
#include "forms/save_map.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

#include "forms/print_form.h"

#ifdef ORRERIX_WITH_SVG_OUTPUT
#include <QSvgGenerator>
#endif

namespace orrerix {
namespace {

constexpr int kPngScale = 2;
constexpr int kPictureDotsPerInch = 96;  // a logical pixel is 15 twips of 1440 an inch

bool Paint(QGraphicsView& map, const QRect& part, QPaintDevice& device) {
  QPainter painter;
  if (!painter.begin(&device)) return false;
  painter.setClipRect(QRect(QPoint(0, 0), part.size()));
  painter.fillRect(QRect(QPoint(0, 0), part.size()), map.scene()->backgroundBrush());
  painter.translate(-part.topLeft());
  PaintForm(painter, map, map);
  return painter.end();
}

bool WritePng(QGraphicsView& map, const QRect& part, const QString& file) {
  QImage picture(part.size() * kPngScale, QImage::Format_RGB32);
  picture.setDevicePixelRatio(kPngScale);
  return Paint(map, part, picture) && picture.save(file, "PNG");
}

bool WritePdf(QGraphicsView& map, const QRect& part, const QString& file) {
  QPdfWriter writer(file);
  writer.setResolution(kPictureDotsPerInch);
  writer.setPageSize(QPageSize(QSizeF(part.size()) * 72.0 / kPictureDotsPerInch, QPageSize::Point,
                               {}, QPageSize::ExactMatch));
  writer.setPageMargins({});
  writer.setTitle("FL Orrerix");
  return Paint(map, part, writer);
}

#ifdef ORRERIX_WITH_SVG_OUTPUT
bool WriteSvg(QGraphicsView& map, const QRect& part, const QString& file) {
  QSvgGenerator generator;
  generator.setFileName(file);
  generator.setSize(part.size());
  generator.setViewBox(QRect(QPoint(0, 0), part.size()));
  generator.setTitle("FL Orrerix");
  return Paint(map, part, generator);
}
#endif

}  // namespace

QStringList PictureFilters() {
#ifdef ORRERIX_WITH_SVG_OUTPUT
  return {"PNG (*.png)", "SVG (*.svg)", "PDF (*.pdf)"};
#else
  return {"PNG (*.png)", "PDF (*.pdf)"};
#endif
}

QString SaveMap(QGraphicsView& map, const QRect& part, const QString& file) {
  const auto endsIn = [&file](const char* ending) {
    return file.endsWith(ending, Qt::CaseInsensitive);
  };
#ifdef ORRERIX_WITH_SVG_OUTPUT
  if (endsIn(".svg")) return WriteSvg(map, part, file) ? file : QString();
#endif
  if (endsIn(".pdf")) return WritePdf(map, part, file) ? file : QString();
  const QString name = endsIn(".png") ? file : file + ".png";
  return WritePng(map, part, name) ? name : QString();
}

}  // namespace orrerix
