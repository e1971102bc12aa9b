// SPDX-License-Identifier: MIT
// Findings of a check as a tree: groups, and in each the findings of a rule or of a file.
#pragma once

#include <QAbstractItemModel>
#include <QSortFilterProxyModel>
#include <array>
#include <string>
#include <vector>

#include "check/check.h"
#include "shell/text_id.h"

namespace orrerix {

class FindingModel : public QAbstractItemModel {
 public:
  enum class Grouping { ByRule, ByFile };
  enum Column { PlaceColumn, SeverityColumn, MessageColumn, NicknameColumn, RuleColumn };

  explicit FindingModel(const LanguageChoice& choice) : choice_(choice) {}

  // Takes over the findings that count; the others are not shown.
  void Show(std::vector<check::Finding> findings);
  void GroupBy(Grouping grouping);

  // Severities have colors that are read on a light background, or on a dark one.
  void StandOn(bool light);

  // Null for the row of a group.
  const check::Finding* FindingAt(const QModelIndex& index) const;

  QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Group {
    std::string Title;
    std::vector<std::size_t> Findings;  // places in findings_
  };

  void Regroup();

  const LanguageChoice& choice_;
  std::vector<check::Finding> findings_;
  std::vector<Group> groups_;
  Grouping grouping_ = Grouping::ByRule;
  bool onLight_ = false;
};

// Leaves the findings of some severities whose texts hold a text, and the groups that have any.
class FindingFilter : public QSortFilterProxyModel {
 public:
  explicit FindingFilter(FindingModel& findings);

  void Want(check::Severity severity, bool wanted);
  void WantText(const QString& text);

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
  bool lessThan(const QModelIndex& left, const QModelIndex& right) const override;

 private:
  FindingModel& findings_;
  std::array<bool, 3> severities_{true, true, true};
  QString text_;
};

}  // namespace orrerix
