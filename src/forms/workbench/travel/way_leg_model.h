// SPDX-License-Identifier: MIT
// The legs of a way as a table.
#pragma once

#include <QAbstractTableModel>
#include <cstdint>
#include <vector>

#include "forms/workbench/workbench_host.h"
#include "routes/fastest_way.h"
#include "routes/travel.h"
#include "shell/text_id.h"

namespace orrerix {

// A leg with the texts that a table shows.
struct WayLegRow {
  ShownLeg Leg;
  QString System;
  QString To;
  QString Goods;        // aboard; empty where nothing is
  double Distance = 0;  // game units
  std::int64_t Time = 0;
  QString Coordinates;  // of its end: name, system and position in game units
  QString Waypoint;     // of its end, as a line of a mission script's objective
};

std::vector<WayLegRow> RowsOf(const Travel& travel, const Way& way, const QString& goods = {});

// Milliseconds as "12:05", minutes and seconds.
QString MinutesText(std::int64_t milliseconds);

// A whole number with the separators of a language.
QString NumberText(Language language, double number);

class WayLegModel : public QAbstractTableModel {
 public:
  enum Column {
    LegColumn,
    SystemColumn,
    ToColumn,
    GoodsColumn,
    JumpsColumn,
    DistanceColumn,
    TimeColumn
  };

  explicit WayLegModel(const LanguageChoice& choice) : choice_(choice) {}

  void Show(std::vector<WayLegRow> rows);
  const std::vector<WayLegRow>& Rows() const { return rows_; }

  // What the map shows of them.
  std::vector<ShownLeg> Legs() const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString TextOf(std::size_t row, int column) const;

  const LanguageChoice& choice_;
  std::vector<WayLegRow> rows_;
  std::vector<int> jumps_;  // up to the end of each row
};

}  // namespace orrerix
