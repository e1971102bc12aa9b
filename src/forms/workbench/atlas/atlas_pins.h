// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "forms/workbench/atlas/atlas_model.h"

namespace orrerix {

// Rows of a table of the atlas side by side. A cell that differs from that of the first row is bold
// and has a symbol before it; so has the best number of a column, where they are not all the same.
class AtlasPins : public QAbstractTableModel {
 public:
  // `shown` is the table whose rows are pinned; it outlives this. No row of another table that it
  // shows later is pinned.
  explicit AtlasPins(const AtlasModel& shown);

  // A row that is pinned stays where it is.
  void Pin(std::size_t storedRow);
  void Unpin(int row);

  const std::vector<std::size_t>& Rows() const { return rows_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void RowsChanged();
  const Value& At(std::size_t row, int column) const;
  bool Differs(const QModelIndex& index) const;
  bool IsBest(const QModelIndex& index) const;
  QString TextOf(const QModelIndex& index) const;

  const AtlasModel& shown_;
  std::vector<std::size_t> rows_;  // stored ones
};

}  // namespace orrerix
