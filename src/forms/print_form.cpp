// SPDX-License-Identifier: MIT
#include "forms/print_form.h"

#include <QImage>
#include <QPainter>

#include <fmt/format.h>

#include "db/failure.h"
#include "shell/language_texts.h"

namespace orrerix {
namespace {

// A logical pixel is 15 twips of 1440 an inch. On paper lines are as wide as that, too.
constexpr int kDotsPerInch = 96;

void SetTarget(QPrinter& printer, const PrintTarget& target) {
  if (target.File.empty()) {
    printer.setPrinterName(QString::fromStdString(target.Printer));
  } else {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(target.File.string()));
  }
}

std::string NameOf(const PrintTarget& target, const QPrinter& printer) {
  if (!target.File.empty()) return target.File.string();
  return target.Printer.empty() ? printer.printerName().toStdString() : target.Printer;
}

// In the middle of the page's printable part.
QRectF PlaceOnPage(const QSizeF& form, const QPrinter& printer) {
  const QRectF page(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size());
  // A printer may not heed the resolution that it is asked for.
  const double pixel = static_cast<double>(printer.resolution()) / kDotsPerInch;
  QSizeF size = form * pixel;
  if (size.width() > page.width() || size.height() > page.height()) {
    size.scale(page.size(), Qt::KeepAspectRatio);
  }
  QRectF place(QPointF(0, 0), size);
  place.moveCenter(page.center());
  return place;
}

// Widgets clip to whole pixels of the screen: painted on paper itself their parts leave seams.
QImage PictureOf(QWidget& widget) {
  constexpr int dotsPerPixel = 3;
  QImage picture(widget.size() * dotsPerPixel, QImage::Format_ARGB32_Premultiplied);
  picture.setDevicePixelRatio(dotsPerPixel);
  picture.fill(Qt::transparent);
  widget.render(&picture);
  return picture;
}

}  // namespace

// The scene is painted itself, not its view: on paper its pictures are as fine as they can be.
void PaintForm(QPainter& painter, const QWidget& form, QGraphicsView& map) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setClipRect(form.rect(), Qt::IntersectClip);
  const QPointF corner = map.mapTo(&form, QPoint(0, 0));
  const QRectF frame = map.sceneRect();
  map.scene()->render(&painter, QRectF(corner, frame.size()), frame);
  // Children are in the order of their stacking.
  for (QObject* child : map.children()) {
    auto* widget = qobject_cast<QWidget*>(child);
    if (widget == nullptr || widget == map.viewport() || !widget->isVisible()) continue;
    painter.drawImage(widget->mapTo(&form, QPoint(0, 0)), PictureOf(*widget));
  }
  painter.restore();
}

void PrintForm(const QWidget& form, QGraphicsView& map, const std::optional<PrintTarget>& target,
               Language language) {
  if (!target) {
    throw Failure{kPrinterError, std::string(TextIn(language, TextId::NoPrinter))};
  }
  auto* device = dynamic_cast<QtPrintDevice*>(target->Device.get());
  QtPrintDevice own;
  QPrinter& printer = device == nullptr ? own.Printer : device->Printer;
  if (device == nullptr) SetTarget(printer, *target);
  printer.setResolution(kDotsPerInch);
  printer.setDocName("FL Orrerix");
  QPainter painter;
  if (!painter.begin(&printer)) {
    throw Failure{kPrinterError,
                  FormatIn(language, TextId::PrinterTakesNoPages, NameOf(*target, printer))};
  }
  const QRectF place = PlaceOnPage(form.size(), printer);
  painter.translate(place.topLeft());
  painter.scale(place.width() / form.width(), place.height() / form.height());
  PaintForm(painter, form, map);
}

}  // namespace orrerix
