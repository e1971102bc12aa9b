// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>
#include <functional>
#include <vector>

#include "forms/controls/row_list.h"

namespace orrerix {

// A list whose rows show more beside their text, in columns below heads that can be pressed. The
// items keep their own text; what the further columns show is theirs under kCellsRole.
class ColumnList : public RowList {
 public:
  // Of an item: a QStringList, the texts of the second and all further columns.
  static constexpr int kCellsRole = Qt::UserRole + 1;

  struct Column {
    QString Head;
    double Share = 1;  // of the list's width; all shares together are 1
    bool IsNumber = false;

    bool operator==(const Column&) const = default;
  };

  explicit ColumnList(QWidget* parent);

  // `headTip` is the tool tip of all heads.
  void SetColumns(std::vector<Column> columns, const QString& headTip);

  // Marks the head of the column that the rows are sorted by; -1 for none.
  void ShowSorting(int column, bool descending);

  // Called with a column when its head is pressed.
  std::function<void(int)> OnHead;

  const std::vector<Column>& Columns() const { return columns_; }

  // The text of a cell, and its place in the viewport.
  static QString CellText(const QModelIndex& index, int column);
  QRect CellRect(const QRect& row, int column) const;

 protected:
  void updateGeometries() override;
  void resizeEvent(QResizeEvent* event) override;
  bool viewportEvent(QEvent* event) override;

 private:
  void PlaceHeads();
  bool IsCut(const QModelIndex& index) const;

  std::vector<Column> columns_;
  std::vector<QPushButton*> heads_;
  int sortedBy_ = -1;
  bool descending_ = false;
};

}  // namespace orrerix
