// SPDX-License-Identifier: MIT
#pragma once

#include <QPrinter>
#include <QString>
#include <QTableView>
#include <functional>
#include <vector>

#include "forms/workbench/atlas/atlas_columns.h"
#include "forms/workbench/atlas/atlas_model.h"
#include "forms/workbench/atlas/print_table.h"
#include "shell/text_id.h"

namespace orrerix {

// What leaves the atlas: rows on the clipboard, the shown part of a table as a file or on paper.
class AtlasOutput {
 public:
  // All of these outlive this.
  AtlasOutput(QTableView& view, const AtlasModel& model, const AtlasColumns& columns,
              const LanguageChoice& choice);

  // Called with what a player should know: a file or a printer that does not take the table.
  std::function<void(const QString&)> OnState;

  // Whether the machine has a printer, and the desktop's question for one, which returns false if
  // the player gives up.
  std::function<bool()> HasPrinter;
  std::function<bool(QPrinter&)> AskPrinter;

  // The chosen rows with tabs between their shown cells.
  void CopyRows() const;

  // Asks for a file and writes the shown rows and columns into it.
  void Export();

  // Writes them as PDF into a file whose name ends so, else as CSV. False if it cannot be written.
  bool SaveTo(const QString& file) const;

  void Print();

  // The chosen rows from top to bottom.
  std::vector<int> ChosenRows() const;

 private:
  PrintedTable Printed() const;

  QTableView& view_;
  const AtlasModel& model_;
  const AtlasColumns& columns_;
  const LanguageChoice& choice_;
};

}  // namespace orrerix
