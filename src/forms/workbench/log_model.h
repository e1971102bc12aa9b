// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <string>
#include <vector>

#include "check/log_places.h"
#include "import/log_entry.h"
#include "shell/text_id.h"

namespace orrerix {

// The data log as a table, one entry a row.
class LogModel : public QAbstractTableModel {
 public:
  enum Column { KindColumn, FileColumn, LineColumn, NicknameColumn, TextColumn };

  explicit LogModel(const LanguageChoice& choice) : choice_(choice) {}

  // `places` has one for each entry.
  void Show(std::vector<LogEntry> entries, std::vector<check::LogPlace> places);

  // Null for an index of no row.
  const LogEntry* EntryAt(const QModelIndex& index) const;
  check::LogPlace PlaceAt(const QModelIndex& index) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const LanguageChoice& choice_;
  std::vector<LogEntry> entries_;
  std::vector<check::LogPlace> places_;
};

}  // namespace orrerix
