// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <vector>

#include "map/drawing_list.h"

namespace orrerix {

// Rows of a price table, made from its labels: a head alone, or name, price and difference.
class PriceTableModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  // Takes the labels of a price table over, from the top.
  void Show(const ControlList& labels);

  // The labels of a row: one or three.
  const ControlList& Row(int row) const { return rows_[static_cast<std::size_t>(row)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const Control* LabelAt(const QModelIndex& index) const;

  std::vector<ControlList> rows_;
};

// The price table of a station window: every label in its own colour and font. Rows can be
// selected; copying takes them as text, a TAB between the columns.
class PriceTableView : public QTableView {
 public:
  explicit PriceTableView(QWidget* parent);

  // Shows the labels of a table at their places, twips from the parent's corner.
  void Show(const ControlList& labels);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Copy() const;

  PriceTableModel model_;
};

}  // namespace orrerix
