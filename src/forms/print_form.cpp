// SPDX-License-Identifier: MIT
#include "forms/print_form.h"

#include <QPainter>
#include <QPrinter>

#include <fmt/format.h>

#include "db/failure.h"

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

// In the middle of the page's printable part.
QRectF PlaceOnPage(const QSizeF& frame, const QPrinter& printer) {
  const QRectF page(QPointF(0, 0), printer.pageRect(QPrinter::DevicePixel).size());
  // A printer may not heed the resolution that it is asked for.
  const double pixel = static_cast<double>(printer.resolution()) / kDotsPerInch;
  QSizeF size = frame * pixel;
  if (size.width() > page.width() || size.height() > page.height()) {
    size.scale(page.size(), Qt::KeepAspectRatio);
  }
  QRectF place(QPointF(0, 0), size);
  place.moveCenter(page.center());
  return place;
}

}  // namespace

void PrintForm(MapScene& scene, const std::optional<PrintTarget>& target) {
  if (!target) {
    throw Failure{kPrinterError, "The map cannot be printed: this computer has no printer."};
  }
  QPrinter printer(QPrinter::HighResolution);
  SetTarget(printer, *target);
  printer.setResolution(kDotsPerInch);
  const QRectF frame = scene.sceneRect();
  printer.setDocName("FL Orrerix");
  QPainter painter;
  if (!painter.begin(&printer)) {
    throw Failure{kPrinterError,
                  fmt::format("The map cannot be printed: '{}' takes no pages.",
                              target->File.empty() ? target->Printer : target->File.string())};
  }
  painter.setRenderHint(QPainter::Antialiasing);
  scene.render(&painter, PlaceOnPage(frame.size(), printer), frame);
}

}  // namespace orrerix
