// SPDX-License-Identifier: MIT
#pragma once

#include <QPagedPaintDevice>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "shell/text_id.h"

namespace orrerix {

// A table as it goes to paper.
struct PrintedTable {
  QString Title;
  QStringList Heads;           // with "\n" between the lines of one
  std::vector<bool> IsNumber;  // by column
  int RowCount = 0;
  std::function<QString(int row, int column)> Cell;
};

// Prints a table on as many pages as it needs, with heads and numbers of pages. Columns that find
// no room beside the others follow on pages of their own, each time with the first column before
// them. Cells that are too long end in an ellipsis. False if the paper takes nothing.
bool PrintTable(QPagedPaintDevice& paper, const PrintedTable& table, Language language);

// Writes a table into a PDF file, A4 on its side. False if it cannot be written.
bool WriteTablePdf(const QString& file, const PrintedTable& table, Language language);

}  // namespace orrerix
