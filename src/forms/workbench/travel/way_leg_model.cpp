// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/way_leg_model.h"

#include <QLocale>
#include <array>

#include "forms/controls/captions.h"
#include "forms/workbench/cell_alignment.h"
#include "picture/plain_tool_tip.h"

namespace orrerix {
namespace {

constexpr std::array kWayLegModelHeads = {
    TextId::HeadLeg,   TextId::HeadSystem,   TextId::HeadTo,  TextId::HeadGoods,
    TextId::HeadJumps, TextId::HeadDistance, TextId::HeadTime};
constexpr std::array kKinds = {TextId::LegLaunch, TextId::LegGate, TextId::LegHole,
                               TextId::LegLane,   TextId::LegFly,  TextId::LegDock};

QString Named(const std::string& name, const std::string& nickname) {
  return QString::fromStdString(name.empty() ? nickname : name);
}

QString CoordinatesOf(const Travel& travel, const TravelObject& object) {
  const TravelSystem& system = travel.Graph.Systems[object.System];
  return QString("%1, %2: %3, %4, %5")
      .arg(Named(object.Name, object.Nickname), Named(system.Name, system.Nickname))
      .arg(object.Point.X, 0, 'f', 0)
      .arg(object.Point.Y, 0, 'f', 0)
      .arg(object.Point.Z, 0, 'f', 0);
}

// The game's own objectives name a marker by system, two texts and position. The place's name
// stands for both texts, since its info card is none.
QString WaypointOf(const Travel& travel, const TravelObject& object) {
  return QString("type = navmarker, %1, %2, %2, %3, %4, %5")
      .arg(QString::fromStdString(travel.Graph.Systems[object.System].Nickname))
      .arg(object.NameId)
      .arg(object.Point.X, 0, 'f', 0)
      .arg(object.Point.Y, 0, 'f', 0)
      .arg(object.Point.Z, 0, 'f', 0);
}

bool IsJump(const WayLegRow& row) {
  return row.Leg.Kind == LegKind::Gate || row.Leg.Kind == LegKind::Hole;
}

}  // namespace

std::vector<WayLegRow> RowsOf(const Travel& travel, const Way& way, const QString& goods) {
  std::vector<WayLegRow> rows;
  for (const WayLeg& leg : way.Legs) {
    const TravelObject& from = travel.Graph.Objects[leg.From];
    const TravelObject& to = travel.Graph.Objects[leg.To];
    const TravelSystem& system = travel.Graph.Systems[from.System];
    rows.push_back({{leg.Kind, from.Nickname, to.Nickname},
                    Named(system.Name, system.Nickname),
                    Named(to.Name, to.Nickname),
                    goods,
                    leg.Distance,
                    leg.Time,
                    CoordinatesOf(travel, to),
                    WaypointOf(travel, to)});
  }
  return rows;
}

// Whole seconds, rounded up as the legs are.
QString MinutesText(std::int64_t milliseconds) {
  const std::int64_t seconds = (milliseconds + 999) / 1000;
  return QString("%1:%2").arg(seconds / 60).arg(seconds % 60, 2, 10, QChar('0'));
}

QString NumberText(Language language, double number) {
  constexpr std::array speech = {QLocale::English, QLocale::German, QLocale::French};
  return QLocale(speech[static_cast<std::size_t>(language) % speech.size()])
      .toString(number, 'f', 0);
}

void WayLegModel::Show(std::vector<WayLegRow> rows) {
  beginResetModel();
  rows_ = std::move(rows);
  jumps_.clear();
  for (const WayLegRow& row : rows_) {
    jumps_.push_back((jumps_.empty() ? 0 : jumps_.back()) + (IsJump(row) ? 1 : 0));
  }
  endResetModel();
}

std::vector<ShownLeg> WayLegModel::Legs() const {
  std::vector<ShownLeg> legs;
  for (const WayLegRow& row : rows_) legs.push_back(row.Leg);
  return legs;
}

int WayLegModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int WayLegModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(kWayLegModelHeads.size());
}

QVariant WayLegModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::TextAlignmentRole) return CellAlignment(index.column() >= JumpsColumn);
  const auto row = static_cast<std::size_t>(index.row());
  if (role == Qt::ToolTipRole && index.column() == ToColumn) {
    return PlainToolTip(rows_[row].Leg.To);
  }
  if (role == Qt::ToolTipRole) return PlainToolTip(TextOf(row, index.column()));
  if (role != Qt::DisplayRole) return {};
  return TextOf(row, index.column());
}

QString WayLegModel::TextOf(std::size_t index, int column) const {
  const WayLegRow& row = rows_[index];
  switch (column) {
    case LegColumn:
      return CaptionIn(choice_.Current, kKinds[static_cast<std::size_t>(row.Leg.Kind)]);
    case SystemColumn:
      return row.System;
    case ToColumn:
      return row.To;
    case GoodsColumn:
      return row.Goods;
    case JumpsColumn:
      return QString::number(jumps_[index]);
    case DistanceColumn:
      return NumberText(choice_.Current, row.Distance);
    default:
      return MinutesText(row.Time);
  }
}

QVariant WayLegModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::TextAlignmentRole) return CellAlignment(section >= JumpsColumn);
  if (role != Qt::DisplayRole) return {};
  return CaptionIn(choice_.Current, kWayLegModelHeads[static_cast<std::size_t>(section)]);
}

}  // namespace orrerix
