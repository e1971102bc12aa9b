// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_model.h"

#include <algorithm>
#include <numeric>

#include "atlas/hardpoints.h"
#include "db/values/text.h"
#include "forms/workbench/atlas/atlas_captions.h"
#include "forms/workbench/cell_alignment.h"
#include "picture/plain_tool_tip.h"
#include "tables/value_order.h"

namespace orrerix {
namespace {

constexpr QChar kCellEnd('\n');
constexpr int kNotShown = -1;

bool HoldsNumbers(const StoredTable& rows, std::size_t column) {
  bool hasNumber = false;
  for (std::size_t row = 0; row < rows.RowCount(); ++row) {
    const Value& value = rows.Row(row)[column];
    if (value.IsText()) return false;
    hasNumber = hasNumber || !value.IsNull();
  }
  return hasNumber;
}

}  // namespace

QString CellText(const Value& value) {
  return QString::fromStdString(value.Text());
}

void AtlasModel::Show(const AtlasTable& table, const StoredTable& rows) {
  beginResetModel();
  table_ = &table;
  stored_ = &rows;
  choice_ = {};
  orders_.clear();
  isNumber_.clear();
  for (std::size_t column = 0; column < table.Columns.size(); ++column) {
    isNumber_.push_back(HoldsNumbers(rows, column));
  }
  FoldTexts();
  inOrder_.resize(rows.RowCount());
  std::iota(inOrder_.begin(), inOrder_.end(), std::size_t{0});
  shown_ = inOrder_;
  endResetModel();
}

void AtlasModel::Clear() {
  beginResetModel();
  table_ = nullptr;
  stored_ = nullptr;
  shown_.clear();
  inOrder_.clear();
  folded_.clear();
  orders_.clear();
  endResetModel();
}

void AtlasModel::FoldTexts() {
  folded_.clear();
  folded_.reserve(stored_->RowCount());
  for (std::size_t row = 0; row < stored_->RowCount(); ++row) {
    QString text;
    for (const Value& value : stored_->Row(row)) text += CellText(value) + kCellEnd;
    folded_.push_back(text.toLower());
  }
}

bool AtlasModel::IsWanted(std::size_t row, const QString& folded) const {
  if (!folded.isEmpty() && !folded_[row].contains(folded)) return false;
  const auto cells = stored_->Row(row);
  const bool meetsAll = std::all_of(choice_.Conditions.begin(), choice_.Conditions.end(),
                                    [cells](const AtlasCondition& condition) {
                                      return Meets(cells[condition.Column], condition.Wanted);
                                    });
  if (!meetsAll) return false;
  const auto hardpoint = choice_.Types ? HardpointColumnOf(*table_) : std::nullopt;
  if (!hardpoint) return true;
  const std::string* type = cells[*hardpoint].TextContent();
  return type != nullptr && choice_.Types->contains(FoldAscii(*type));
}

// Rows go and come all at once: one signal for each run of rows would take far longer.
void AtlasModel::Choose(AtlasChoice choice) {
  choice_ = std::move(choice);
  if (!shown_.empty()) {
    beginRemoveRows({}, 0, rowCount() - 1);
    shown_.clear();
    endRemoveRows();
  }
  std::vector<std::size_t> wanted;
  const QString folded = choice_.Text.toLower();
  for (const std::size_t row : inOrder_) {
    if (IsWanted(row, folded)) wanted.push_back(row);
  }
  if (wanted.empty()) return;
  beginInsertRows({}, 0, static_cast<int>(wanted.size()) - 1);
  shown_ = std::move(wanted);
  endInsertRows();
}

// What is missing stands last in either direction.
bool AtlasModel::IsRowBefore(std::size_t a, std::size_t b) const {
  for (const Order& order : orders_) {
    const Value& first = stored_->Row(a)[order.Column];
    const Value& second = stored_->Row(b)[order.Column];
    if (first.IsNull() != second.IsNull()) return second.IsNull();
    if (IsBefore(first, second)) return !order.IsDescending;
    if (IsBefore(second, first)) return order.IsDescending;
  }
  return a < b;
}

void AtlasModel::SortBy(std::vector<Order> orders) {
  emit layoutAboutToBeChanged({}, VerticalSortHint);
  const std::vector<std::size_t> before = shown_;
  orders_ = std::move(orders);
  std::sort(inOrder_.begin(), inOrder_.end(),
            [this](std::size_t a, std::size_t b) { return IsRowBefore(a, b); });
  std::vector<int> places(StoredCount(), kNotShown);
  for (const std::size_t row : before) places[row] = 0;
  shown_.clear();
  for (const std::size_t row : inOrder_) {
    if (places[row] == kNotShown) continue;
    places[row] = rowCount();
    shown_.push_back(row);
  }
  for (const QModelIndex& old : persistentIndexList()) {
    const int row = places[before[static_cast<std::size_t>(old.row())]];
    changePersistentIndex(old, index(row, old.column()));
  }
  emit layoutChanged({}, VerticalSortHint);
}

void AtlasModel::sort(int column, Qt::SortOrder order) {
  if (table_ == nullptr) return;
  if (column < 0) return SortBy({});
  std::vector<Order> orders = orders_;
  const auto first = static_cast<std::size_t>(column);
  std::erase_if(orders, [first](const Order& known) { return known.Column == first; });
  orders.insert(orders.begin(), {first, order == Qt::DescendingOrder});
  SortBy(std::move(orders));
}

int AtlasModel::RowOf(std::size_t storedRow) const {
  const auto found = std::find(shown_.begin(), shown_.end(), storedRow);
  return found == shown_.end() ? kNotShown : static_cast<int>(found - shown_.begin());
}

TablePart AtlasModel::Part(std::vector<std::size_t> columns) const {
  return {*stored_, std::move(columns), shown_};
}

int AtlasModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int AtlasModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() || table_ == nullptr ? 0 : static_cast<int>(table_->Columns.size());
}

QVariant AtlasModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: {
      const Value& value =
          stored_->Row(StoredRow(index.row()))[static_cast<std::size_t>(index.column())];
      const QString text = CellText(value);
      return role == Qt::DisplayRole ? text : PlainToolTip(text);
    }
    case Qt::TextAlignmentRole:
      return CellAlignment(IsNumber(index.column()));
    default:
      return {};
  }
}

QString AtlasModel::Head(std::size_t column) const {
  return AtlasCaption(language_.Current, table_->Columns[column].Head);
}

QVariant AtlasModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
  const auto place = static_cast<std::size_t>(section);
  const ColumnHead& column = table_->Columns[place];
  switch (role) {
    case Qt::DisplayRole:
      return Head(place).replace(" (", "\n(");  // the unit below
    case Qt::ToolTipRole:
      return PlainToolTip(Head(place) + "\n" +
                          QString::fromStdString(column.Id + ": " + column.Formula));
    case Qt::TextAlignmentRole:
      return CellAlignment(IsNumber(section));
    default:
      return {};
  }
}

}  // namespace orrerix
