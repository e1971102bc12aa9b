// SPDX-License-Identifier: MIT
#pragma once

#include <QSortFilterProxyModel>

namespace orrerix {

// Cells of a table give the value by which they are sorted under this role; none if they are empty.
inline constexpr int kSortRole = Qt::UserRole;

// Sorts a table by value, with rows that have none last, and leaves rows with a text in any cell.
class ValueFilter : public QSortFilterProxyModel {
 public:
  explicit ValueFilter(QAbstractItemModel& table);

 protected:
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
};

}  // namespace orrerix
