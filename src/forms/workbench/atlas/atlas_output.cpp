// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_output.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <algorithm>

#include "forms/controls/captions.h"
#include "forms/workbench/atlas/atlas_captions.h"
#include "shell/language_texts.h"

namespace orrerix {

AtlasOutput::AtlasOutput(QTableView& view, const AtlasModel& model, const AtlasColumns& columns,
                         const LanguageChoice& choice)
    : HasPrinter([] { return !QPrinterInfo::availablePrinterNames().isEmpty(); }),
      AskPrinter([&view](QPrinter& printer) {
        return QPrintDialog(&printer, view.window()).exec() == QDialog::Accepted;
      }),
      view_(view),
      model_(model),
      columns_(columns),
      choice_(choice) {}

std::vector<int> AtlasOutput::ChosenRows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : view_.selectionModel()->selectedRows()) {
    rows.push_back(index.row());
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

void AtlasOutput::CopyRows() const {
  QStringList lines;
  for (const int row : ChosenRows()) {
    QStringList cells;
    for (const std::size_t column : columns_.Shown()) {
      cells.append(model_.index(row, static_cast<int>(column)).data().toString());
    }
    lines.append(cells.join('\t'));
  }
  if (!lines.isEmpty()) QApplication::clipboard()->setText(lines.join('\n'));
}

PrintedTable AtlasOutput::Printed() const {
  PrintedTable printed;
  printed.Title = AtlasCaption(choice_.Current, model_.Table()->Title);
  printed.RowCount = model_.rowCount();
  const std::vector<std::size_t> columns = columns_.Shown();
  for (const std::size_t column : columns) {
    printed.Heads.append(
        model_.headerData(static_cast<int>(column), Qt::Horizontal, Qt::DisplayRole).toString());
    printed.IsNumber.push_back(model_.IsNumber(static_cast<int>(column)));
  }
  printed.Cell = [this, columns](int row, int column) {
    const std::size_t place = columns[static_cast<std::size_t>(column)];
    return model_.index(row, static_cast<int>(place)).data().toString();
  };
  return printed;
}

bool AtlasOutput::SaveTo(const QString& name) const {
  if (model_.Table() == nullptr) return false;
  if (name.endsWith(".pdf", Qt::CaseInsensitive)) {
    return WriteTablePdf(name, Printed(), choice_.Current);
  }
  const std::string text = CsvOf(model_.Part(columns_.Shown()));
  const auto size = static_cast<qint64>(text.size());
  QFile file(name);
  return file.open(QIODevice::WriteOnly) && file.write(text.data(), size) == size && file.flush();
}

void AtlasOutput::Export() {
  if (model_.Table() == nullptr) return;
  QString kind;
  QString name = QFileDialog::getSaveFileName(&view_, CaptionIn(choice_.Current, TextId::Export),
                                              QString::fromStdString(model_.Table()->Id) + ".csv",
                                              "CSV (*.csv);;PDF (*.pdf)", &kind);
  if (name.isEmpty()) return;
  if (kind.startsWith("PDF") && name.endsWith(".csv")) name.replace(name.size() - 3, 3, "pdf");
  if (SaveTo(name)) return;
  OnState(QString::fromStdString(
      FormatIn(choice_.Current, TextId::CannotWriteFile, name.toStdString())));
}

void AtlasOutput::Print() {
  if (model_.Table() == nullptr) return;
  if (!HasPrinter()) return OnState(CaptionIn(choice_.Current, TextId::AtlasNoPrinter));
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(QPageLayout::Landscape);
  printer.setDocName(AtlasCaption(choice_.Current, model_.Table()->Title));
  if (!AskPrinter(printer) || PrintTable(printer, Printed(), choice_.Current)) return;
  const QString target =
      printer.outputFileName().isEmpty() ? printer.printerName() : printer.outputFileName();
  OnState(QString::fromStdString(
      FormatIn(choice_.Current, TextId::CannotWriteFile, target.toStdString())));
}

}  // namespace orrerix
