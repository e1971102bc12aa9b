// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "forms/workbench/value_filter.h"
#include "shell/text_id.h"

namespace orrerix {

// A cell: what it shows, and what it is sorted by.
struct Cell {
  QString Text;
  QVariant Value;  // none: an empty cell
};

// A table of ready cells: texts at the left, numbers at the right.
class CellTable : public QAbstractTableModel {
 public:
  // Columns from `firstNumber` on hold numbers. `choice`, the language in use, outlives this.
  CellTable(const LanguageChoice& choice, std::vector<TextId> heads, int firstNumber)
      : choice_(choice), heads_(std::move(heads)), firstNumber_(firstNumber) {}

  // Each row has a cell for each head.
  void Show(std::vector<std::vector<Cell>> rows);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  bool IsNumber(int column) const { return column >= firstNumber_; }

  const LanguageChoice& choice_;
  std::vector<TextId> heads_;
  int firstNumber_;
  std::vector<std::vector<Cell>> rows_;
};

}  // namespace orrerix
