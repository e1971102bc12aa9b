// SPDX-License-Identifier: MIT
#pragma once

#include <QGraphicsView>
#include <QPainter>
#include <QPrinter>
#include <optional>

#include "platform/printer.h"
#include "shell/text_id.h"

namespace orrerix {

// The failure number of a printer that does not do its work.
inline constexpr int kPrinterError = 482;

// A printer as the desktop's dialog has set it up.
class QtPrintDevice : public PrintDevice {
 public:
  QPrinter Printer{QPrinter::HighResolution};
};

// Prints the inside of a form on one page: its map, and the widgets that stand on the map, on white
// paper. As large as the page's proportions allow, never larger than on a screen of 96 pixels an
// inch. Throws a Failure if there is nothing to print on.
void PrintForm(const QWidget& form, QGraphicsView& map, const std::optional<PrintTarget>& target,
               Language language);

// The same on any painter, with the form's top left corner in its origin.
void PaintForm(QPainter& painter, const QWidget& form, QGraphicsView& map);

}  // namespace orrerix
