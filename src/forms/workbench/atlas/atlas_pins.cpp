// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_pins.h"

#include <QFont>
#include <algorithm>

#include "atlas/better.h"
#include "picture/plain_tool_tip.h"
#include "tables/value_order.h"

namespace orrerix {
namespace {

constexpr const char* kBestSymbol = "\u2605 ";
constexpr const char* kDifferentSymbol = "\u2260 ";

}  // namespace

AtlasPins::AtlasPins(const AtlasModel& shown) : shown_(shown) {
  connect(&shown, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
    beginResetModel();
    rows_.clear();
  });
  connect(&shown, &QAbstractItemModel::modelReset, this, [this] { endResetModel(); });
}

void AtlasPins::Pin(std::size_t storedRow) {
  if (std::find(rows_.begin(), rows_.end(), storedRow) != rows_.end()) return;
  beginInsertRows({}, rowCount(), rowCount());
  rows_.push_back(storedRow);
  endInsertRows();
  RowsChanged();
}

void AtlasPins::Unpin(int row) {
  if (row < 0 || row >= rowCount()) return;
  beginRemoveRows({}, row, row);
  rows_.erase(rows_.begin() + row);
  endRemoveRows();
  RowsChanged();
}

// What is best and different may have changed in all of them.
void AtlasPins::RowsChanged() {
  if (rows_.empty()) return;
  emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int AtlasPins::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int AtlasPins::columnCount(const QModelIndex& parent) const {
  return shown_.columnCount(parent);
}

const Value& AtlasPins::At(std::size_t row, int column) const {
  return shown_.Stored().Row(rows_[row])[static_cast<std::size_t>(column)];
}

bool AtlasPins::Differs(const QModelIndex& index) const {
  return !IsSameValue(At(static_cast<std::size_t>(index.row()), index.column()),
                      At(0, index.column()));
}

bool AtlasPins::IsBest(const QModelIndex& index) const {
  const std::string& id = shown_.Table()->Columns[static_cast<std::size_t>(index.column())].Id;
  const Better better = BetterOf(id);
  const Value& own = At(static_cast<std::size_t>(index.row()), index.column());
  if (!shown_.IsNumber(index.column()) || better == Better::Neither || own.IsNull()) return false;
  bool beatsAny = false;
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    const Value& other = At(row, index.column());
    if (other.IsNull() || IsSameValue(own, other)) continue;
    if ((own.Number() > other.Number()) != (better == Better::Higher)) return false;
    beatsAny = true;
  }
  return beatsAny;
}

QString AtlasPins::TextOf(const QModelIndex& index) const {
  QString text = CellText(At(static_cast<std::size_t>(index.row()), index.column()));
  if (index.column() == 0) return text;  // the name differs anyhow
  if (Differs(index)) text.prepend(QString::fromUtf8(kDifferentSymbol));
  if (IsBest(index)) text.prepend(QString::fromUtf8(kBestSymbol));
  return text;
}

QVariant AtlasPins::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return TextOf(index);
    case Qt::ToolTipRole:
      return PlainToolTip(TextOf(index));
    case Qt::TextAlignmentRole:
      return shown_.headerData(index.column(), Qt::Horizontal, role);
    case Qt::FontRole: {
      QFont font;
      font.setBold(true);
      return index.column() > 0 && Differs(index) ? QVariant(font) : QVariant();
    }
    default:
      return {};
  }
}

QVariant AtlasPins::headerData(int section, Qt::Orientation orientation, int role) const {
  return shown_.headerData(section, orientation, role);
}

}  // namespace orrerix
