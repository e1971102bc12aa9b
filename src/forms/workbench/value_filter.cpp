// SPDX-License-Identifier: MIT
#include "forms/workbench/value_filter.h"

namespace orrerix {

ValueFilter::ValueFilter(QAbstractItemModel& table) {
  setSourceModel(&table);
  setSortRole(kSortRole);
  setFilterKeyColumn(-1);
  setFilterCaseSensitivity(Qt::CaseInsensitive);
  setSortCaseSensitivity(Qt::CaseInsensitive);
}

// Qt reverses the comparison for descending order, so rows without a value are reversed here too.
bool ValueFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const bool leftHas = left.data(kSortRole).isValid();
  const bool rightHas = right.data(kSortRole).isValid();
  if (leftHas != rightHas) return leftHas == (sortOrder() == Qt::AscendingOrder);
  return QSortFilterProxyModel::lessThan(left, right);
}

}  // namespace orrerix
