// SPDX-License-Identifier: MIT
// Plans of trades as a table that sorts and filters.
#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <optional>
#include <vector>

#include "forms/workbench/trade_search.h"
#include "shell/text_id.h"

namespace orrerix {

class TradeModel : public QAbstractTableModel {
 public:
  enum Column {
    FromColumn,
    ToColumn,
    GoodsColumn,
    ProfitColumn,
    MinuteColumn,
    PercentColumn,
    TimeColumn,
    RoundTripColumn
  };

  // Cells give the value by which they are sorted under this role.
  static constexpr int SortRole = Qt::UserRole;

  explicit TradeModel(const LanguageChoice& choice) : choice_(choice) {}

  // Shows the plans of an answer, the best first; none if it has no world.
  void Show(const TradeOutcome& outcome);

  const TradePlan& PlanAt(int row) const { return plans_[static_cast<std::size_t>(row)]; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Row {
    QString From;
    QString To;  // and the stops before
    QString Goods;
    double Profit = 0;
    double Minute = 0;
    std::optional<double> Percent;
    std::int64_t Time = 0;
    std::optional<double> RoundTrip;  // credits a minute, there and back
  };

  static Row RowOf(const TradeWorld& world, const TradePlan& plan);
  QVariant TextOf(const Row& row, int column) const;
  static QVariant ValueOf(const Row& row, int column);

  const LanguageChoice& choice_;
  std::vector<TradePlan> plans_;
  std::vector<Row> rows_;
};

// Sorts by value, with rows that have none last, and leaves rows with a text in any cell.
class TradeFilter : public QSortFilterProxyModel {
 public:
  explicit TradeFilter(TradeModel& trades);

 protected:
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;
};

}  // namespace orrerix
