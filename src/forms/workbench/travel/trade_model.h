// SPDX-License-Identifier: MIT
// Plans of trades as a table that sorts and filters.
#pragma once

#include <QAbstractTableModel>
#include <optional>
#include <vector>

#include "forms/workbench/travel/trade_search.h"
#include "forms/workbench/value_filter.h"
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
    JumpsColumn,
    TimeColumn,
    RoundTripColumn
  };

  explicit TradeModel(const LanguageChoice& choice) : choice_(choice) {}

  // Shows the plans of an answer, the best first; none if it has no world.
  void Show(const TradeOutcome& outcome);

  // The jumps of each plan, which take longer to find than the plans.
  void ShowJumps(const std::vector<int>& jumps);

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
    std::optional<int> Jumps;
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

}  // namespace orrerix
