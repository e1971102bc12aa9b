// SPDX-License-Identifier: MIT
// Prices in a station window.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <vector>

#include "info/station/price_table.h"

namespace orrerix {

inline constexpr int kPriceColumns = 3;  // name, price and difference

// The price tables of a station window as one list of rows: each head, then the prices below it.
class PriceTableModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  // A row of the list: a head over all columns, or prices.
  struct Line {
    const PriceLabel* Head;  // null of prices
    const PriceRow* Row;     // null of a head

    // What stands in a column; null beside a head.
    const PriceLabel* Label(int column) const;
  };

  void Show(std::vector<PriceTable> tables);

  const Line& At(int row) const { return lines_[static_cast<std::size_t>(row)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  std::vector<PriceTable> tables_;
  std::vector<Line> lines_;  // into tables_
};

// The price tables of a station window: every label in its own colour and font. Rows can be
// selected; copying takes them as text, a TAB between the columns.
class PriceTableView : public QTableView {
 public:
  explicit PriceTableView(QWidget* parent);

  // Shows the tables at their places, twips from the parent's corner.
  void Show(std::vector<PriceTable> tables);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Copy() const;

  PriceTableModel model_;
};

}  // namespace orrerix
