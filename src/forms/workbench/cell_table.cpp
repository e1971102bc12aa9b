// SPDX-License-Identifier: MIT
#include "forms/workbench/cell_table.h"

#include "forms/controls/captions.h"
#include "forms/workbench/cell_alignment.h"
#include "picture/plain_tool_tip.h"

namespace orrerix {

void CellTable::Show(std::vector<std::vector<Cell>> rows) {
  beginResetModel();
  rows_ = std::move(rows);
  endResetModel();
}

int CellTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int CellTable::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(heads_.size());
}

QVariant CellTable::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Cell& cell =
      rows_[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
  switch (role) {
    case Qt::DisplayRole:
      return cell.Text;
    case Qt::ToolTipRole:
      return PlainToolTip(cell.Text);
    case kSortRole:
      return cell.Value;
    case Qt::TextAlignmentRole:
      return CellAlignment(IsNumber(index.column()));
    default:
      return {};
  }
}

QVariant CellTable::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return CellAlignment(IsNumber(section));
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  return CaptionIn(choice_.Current, heads_[static_cast<std::size_t>(section)]);
}

}  // namespace orrerix
