// SPDX-License-Identifier: MIT
// Prices in a station window.
#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <vector>

#include "info/station/price_table.h"
#include "shell/language.h"

namespace orrerix {

inline constexpr int kPriceColumns = 3;  // name, price and difference

// The price tables of a station window as one list of rows: each head, with the captions of the
// columns beside it, then the prices below it. All rows have letters of one size.
class PriceTableModel : public QAbstractTableModel {
 public:
  // `texts` outlives this.
  PriceTableModel(TextSource& texts, QObject* parent)
      : QAbstractTableModel(parent), texts_(texts) {}

  // A row of the list: a head, or prices.
  struct Line {
    const PriceLabel* Head;  // null of prices
    const PriceRow* Row;     // null of a head
    int Group = 0;

    // What stands in a column; null beside a head.
    const PriceLabel* Label(int column) const;
  };

  void Show(std::vector<PriceTable> tables);

  const Line& At(int row) const { return lines_[static_cast<std::size_t>(row)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  QString Text(const Line& line, int column) const;
  int LetterSize() const;
  bool Fits(int fontSize) const;

  TextSource& texts_;
  std::vector<PriceTable> tables_;
  std::vector<Line> lines_;  // into tables_
  int fontSize_ = 0;         // points
};

// The price tables of a station window, each group in its own colour. Rows can be selected; copying
// takes them as text, a TAB between the columns.
class PriceTableView : public QTableView {
 public:
  // `texts` outlives this.
  PriceTableView(TextSource& texts, QWidget* parent);

  // Shows the tables at their places, twips from the parent's corner.
  void Show(std::vector<PriceTable> tables);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Copy() const;

  PriceTableModel model_;
};

}  // namespace orrerix
