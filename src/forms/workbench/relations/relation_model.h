// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <vector>

#include "shell/text_id.h"
#include "space/relations.h"

namespace orrerix {

// The factions against each other: a cell says with a symbol and a color how the faction of its row
// stands to that of its column. Rows and columns are in the order of the names.
class RelationModel : public QAbstractTableModel {
 public:
  // The language of names of attitudes; it outlives this.
  explicit RelationModel(const LanguageChoice& choice) : choice_(choice) {}

  void Show(std::vector<RelatedFaction> factions);

  // Leaves the rows whose name or nickname holds a text, whatever its case.
  void Filter(const QString& text);

  // By what the rows think of the faction of a column, ties by name; what is not stated stands
  // last. A column below 0 brings the order of the names back.
  void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

  // "Navy towards Rogues: hostile (-0.65)"
  QString TextOf(const QModelIndex& index) const;

  // The same from the faction of the column to that of the row.
  QString TextBack(const QModelIndex& index) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QString Describe(std::size_t from, std::size_t to) const;
  bool IsRowBefore(std::size_t a, std::size_t b) const;
  void Arrange();

  const LanguageChoice& choice_;
  std::vector<RelatedFaction> factions_;
  std::vector<std::size_t> columns_;  // all factions, by name
  std::vector<std::size_t> rows_;     // those that are shown, in their order
  QString filter_;
  int sortedBy_ = -1;
  bool isDescending_ = false;
};

}  // namespace orrerix
