// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/trade_model.h"

#include <QLocale>
#include <algorithm>
#include <array>

#include "forms/controls/captions.h"
#include "forms/workbench/cell_alignment.h"
#include "picture/plain_tool_tip.h"

namespace orrerix {
namespace {

constexpr std::array kHeads = {TextId::HeadFrom,   TextId::HeadTo,        TextId::HeadGoods,
                               TextId::HeadProfit, TextId::HeadPerMinute, TextId::HeadPercent,
                               TextId::HeadJumps,  TextId::HeadMinutes,   TextId::HeadRoundTrip};

QString StopText(const TravelGraph& graph, NodeIndex dock) {
  const TravelObject& object = graph.Objects[dock];
  const TravelSystem& system = graph.Systems[object.System];
  return QString::fromStdString((object.Name.empty() ? object.Nickname : object.Name) + ", " +
                                (system.Name.empty() ? system.Nickname : system.Name));
}

double RoundTripOf(const TradePlan& plan) {
  const std::int64_t back = plan.Back->Cargo ? plan.Back->Cargo->Profit() : 0;
  return PerMinute(plan.Profit() + back, plan.Time() + plan.Back->Time);
}

}  // namespace

TradeModel::Row TradeModel::RowOf(const TradeWorld& world, const TradePlan& plan) {
  Row row;
  QStringList stops;
  QStringList goods;
  for (const TradeLeg& leg : plan.Legs) {
    stops.append(StopText(world.Travel.Graph, leg.To));
    if (leg.Cargo) goods.append(CargoText(world.Market, leg.Cargo));
  }
  row.From = StopText(world.Travel.Graph, plan.Legs.front().From);
  row.To = stops.join(" \u2192 ");
  row.Goods = goods.join("; ");
  row.Profit = static_cast<double>(plan.Profit());
  row.Minute = PerMinute(plan.Profit(), plan.Time());
  row.Time = plan.Time();
  if (plan.Spending() > 0) row.Percent = 100 * row.Profit / static_cast<double>(plan.Spending());
  if (plan.Back) row.RoundTrip = RoundTripOf(plan);
  return row;
}

void TradeModel::Show(const TradeOutcome& outcome) {
  beginResetModel();
  plans_.clear();
  rows_.clear();
  if (outcome.World) {
    plans_ = outcome.Answer.Plans;
    for (const TradePlan& plan : plans_) rows_.push_back(RowOf(*outcome.World, plan));
  }
  endResetModel();
}

void TradeModel::ShowJumps(const std::vector<int>& jumps) {
  for (std::size_t i = 0; i < std::min(jumps.size(), rows_.size()); ++i) rows_[i].Jumps = jumps[i];
  if (rows_.empty()) return;
  emit dataChanged(index(0, JumpsColumn), index(rowCount() - 1, JumpsColumn));
}

int TradeModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int TradeModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(kHeads.size());
}

QVariant TradeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
      return TextOf(row, index.column());
    case Qt::ToolTipRole:
      return PlainToolTip(TextOf(row, index.column()).toString());
    case kSortRole:
      return ValueOf(row, index.column());
    case Qt::TextAlignmentRole:
      return CellAlignment(index.column() >= ProfitColumn);
    default:
      return {};
  }
}

QVariant TradeModel::TextOf(const Row& row, int column) const {
  const auto whole = [&](double number) { return NumberText(choice_.Current, number); };
  switch (column) {
    case FromColumn:
      return row.From;
    case ToColumn:
      return row.To;
    case GoodsColumn:
      return row.Goods;
    case ProfitColumn:
      return whole(row.Profit);
    case MinuteColumn:
      return whole(row.Minute);
    case PercentColumn:
      return row.Percent ? whole(*row.Percent) + "%" : QString();
    case JumpsColumn:
      return row.Jumps ? QString::number(*row.Jumps) : QString();
    case TimeColumn:
      return MinutesText(row.Time);
    default:
      return row.RoundTrip ? whole(*row.RoundTrip) : QString();
  }
}

QVariant TradeModel::ValueOf(const Row& row, int column) {
  const auto orNone = [](const auto& number) { return number ? QVariant(*number) : QVariant(); };
  switch (column) {
    case FromColumn:
      return row.From;
    case ToColumn:
      return row.To;
    case GoodsColumn:
      return row.Goods;
    case ProfitColumn:
      return row.Profit;
    case MinuteColumn:
      return row.Minute;
    case PercentColumn:
      return orNone(row.Percent);
    case JumpsColumn:
      return orNone(row.Jumps);
    case TimeColumn:
      return static_cast<qlonglong>(row.Time);
    default:
      return orNone(row.RoundTrip);
  }
}

QVariant TradeModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return CellAlignment(section >= ProfitColumn);
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  return CaptionIn(choice_.Current, kHeads[static_cast<std::size_t>(section)]);
}

}  // namespace orrerix
