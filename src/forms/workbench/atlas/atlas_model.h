// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "atlas/atlas_table.h"
#include "atlas/filter.h"
#include "db/rows/stored_table.h"
#include "shell/text_id.h"
#include "tables/table_choice.h"
#include "tables/table_formats.h"

namespace orrerix {

// A condition with the place of its column.
struct AtlasCondition {
  std::size_t Column;
  Filter Wanted;
};

// Which rows of a table are shown: those that meet all of these.
struct AtlasChoice {
  QString Text;  // in any cell, whatever its case
  std::vector<AtlasCondition> Conditions;
  std::optional<std::set<std::string>> Types;  // of hardpoints, where the table has them
};

// A table of the atlas: what is missing is empty and stands last, numbers stand at the right, and
// the tool tip of a head gives the ID and formula of its column. It filters and sorts by itself,
// since a proxy takes too long for thousands of rows.
class AtlasModel : public QAbstractTableModel {
 public:
  using Order = TableQuestion::Order;

  // Heads are in this language; it outlives the model.
  explicit AtlasModel(const LanguageChoice& choice = kEnglishOnly) : language_(choice) {}

  // Shows all rows of a table in stored order; both outlive this or the next call.
  void Show(const AtlasTable& table, const StoredTable& rows);
  void Clear();

  void Choose(AtlasChoice choice);

  // The first order counts most; ties keep the stored order.
  void SortBy(std::vector<Order> orders);
  const std::vector<Order>& Orders() const { return orders_; }

  // The column counts most, those by which it was sorted before decide ties. A column below 0
  // brings the stored order back.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

  const AtlasTable* Table() const { return table_; }
  const StoredTable& Stored() const { return *stored_; }
  std::size_t StoredCount() const { return stored_ == nullptr ? 0 : stored_->RowCount(); }

  // The head of a column on one line, in the language in use.
  QString Head(std::size_t column) const;
  bool IsNumber(int column) const { return isNumber_[static_cast<std::size_t>(column)]; }

  // From the rows that are shown to the stored ones, and back; -1 for one that is not shown.
  std::size_t StoredRow(int row) const { return shown_[static_cast<std::size_t>(row)]; }
  int RowOf(std::size_t storedRow) const;

  // The rows that are shown, with some columns.
  TablePart Part(std::vector<std::size_t> columns) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void FoldTexts();
  bool IsWanted(std::size_t row, const QString& folded) const;
  bool IsRowBefore(std::size_t a, std::size_t b) const;

  const LanguageChoice& language_;
  const AtlasTable* table_ = nullptr;
  const StoredTable* stored_ = nullptr;
  std::vector<bool> isNumber_;
  std::vector<QString> folded_;  // all cells of each stored row, for the filter
  AtlasChoice choice_;
  std::vector<Order> orders_;
  std::vector<std::size_t> inOrder_;  // all stored rows
  std::vector<std::size_t> shown_;    // stored rows in the order shown
};

// A cell as it is shown.
QString CellText(const Value& value);

}  // namespace orrerix
