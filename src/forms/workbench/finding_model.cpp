// SPDX-License-Identifier: MIT
#include "forms/workbench/finding_model.h"

#include <QColor>
#include <map>

#include <fmt/format.h>

#include "forms/controls/captions.h"
#include "picture/plain_tool_tip.h"

namespace orrerix {
namespace {

using check::Finding;
using check::Severity;

constexpr int kColumns = 5;
constexpr quintptr kGroupRow = 0;  // children carry the number of their group, from 1

TextId NameOf(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return TextId::SeverityError;
    case Severity::Warning:
      return TextId::SeverityWarning;
    default:
      return TextId::SeverityNote;
  }
}

QColor ColorOf(Severity severity, bool onLight) {
  switch (severity) {
    case Severity::Error:
      return onLight ? QColor(0xFFB02010) : QColor(0xFFFF9080);
    case Severity::Warning:
      return onLight ? QColor(0xFF7A5200) : QColor(0xFFFFD070);
    default:
      return onLight ? QColor(0xFF1A50A0) : QColor(0xFFA8C8FF);
  }
}

}  // namespace

void FindingModel::Show(std::vector<Finding> findings) {
  beginResetModel();
  std::erase_if(findings, [](const Finding& f) { return f.State != check::FindingState::Counted; });
  findings_ = std::move(findings);
  Regroup();
  endResetModel();
}

void FindingModel::GroupBy(Grouping grouping) {
  beginResetModel();
  grouping_ = grouping;
  Regroup();
  endResetModel();
}

void FindingModel::StandOn(bool light) {
  beginResetModel();
  onLight_ = light;
  endResetModel();
}

void FindingModel::Regroup() {
  std::map<std::string, std::vector<std::size_t>> groups;
  for (std::size_t i = 0; i < findings_.size(); ++i) {
    const Finding& finding = findings_[i];
    groups[grouping_ == Grouping::ByRule ? finding.Rule : finding.File].push_back(i);
  }
  groups_.clear();
  for (auto& [title, findings] : groups) groups_.push_back({title, std::move(findings)});
}

const Finding* FindingModel::FindingAt(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == kGroupRow) return nullptr;
  const Group& group = groups_[static_cast<std::size_t>(index.internalId()) - 1];
  return &findings_[group.Findings[static_cast<std::size_t>(index.row())]];
}

QModelIndex FindingModel::index(int row, int column, const QModelIndex& parent) const {
  if (row < 0 || column < 0 || row >= rowCount(parent) || column >= kColumns) return {};
  return createIndex(row, column,
                     parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : kGroupRow);
}

QModelIndex FindingModel::parent(const QModelIndex& index) const {
  if (!index.isValid() || index.internalId() == kGroupRow) return {};
  return createIndex(static_cast<int>(index.internalId()) - 1, 0, kGroupRow);
}

int FindingModel::rowCount(const QModelIndex& parent) const {
  if (!parent.isValid()) return static_cast<int>(groups_.size());
  if (parent.internalId() != kGroupRow || parent.column() > 0) return 0;
  return static_cast<int>(groups_[static_cast<std::size_t>(parent.row())].Findings.size());
}

int FindingModel::columnCount(const QModelIndex&) const {
  return kColumns;
}

QVariant FindingModel::data(const QModelIndex& index, int role) const {
  const Finding* finding = FindingAt(index);
  if (finding == nullptr) {
    if (role != Qt::DisplayRole || index.column() != PlaceColumn) return {};
    const Group& group = groups_[static_cast<std::size_t>(index.row())];
    return QString::fromStdString(fmt::format("{} ({})", group.Title, group.Findings.size()));
  }
  if (role == Qt::ForegroundRole && index.column() == SeverityColumn) {
    return ColorOf(finding->Severity, onLight_);
  }
  if (role == Qt::ToolTipRole) return PlainToolTip(data(index, Qt::DisplayRole).toString());
  if (role != Qt::DisplayRole) return {};
  switch (index.column()) {
    case PlaceColumn:
      return QString::fromStdString(fmt::format("{}:{}", finding->File, finding->Line));
    case SeverityColumn:
      return CaptionIn(choice_.Current, NameOf(finding->Severity));
    case MessageColumn:
      return QString::fromStdString(finding->Message);
    case NicknameColumn:
      return QString::fromStdString(finding->Nickname);
    default:
      return QString::fromStdString(finding->Rule);
  }
}

QVariant FindingModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  constexpr std::array<TextId, kColumns> heads = {TextId::HeadPlace, TextId::HeadSeverity,
                                                  TextId::HeadMessage, TextId::HeadNickname,
                                                  TextId::HeadRule};
  return CaptionIn(choice_.Current, heads[static_cast<std::size_t>(section)]);
}

FindingFilter::FindingFilter(FindingModel& findings) : findings_(findings) {
  setSourceModel(&findings);
  setRecursiveFilteringEnabled(true);
}

void FindingFilter::Want(Severity severity, bool wanted) {
  severities_[static_cast<std::size_t>(severity)] = wanted;
  invalidateFilter();
}

void FindingFilter::WantText(const QString& text) {
  text_ = text;
  invalidateFilter();
}

bool FindingFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
  const QModelIndex index = findings_.index(row, 0, parent);
  const Finding* finding = findings_.FindingAt(index);
  if (finding == nullptr) return false;  // a group is there if one of its findings is
  if (!severities_[static_cast<std::size_t>(finding->Severity)]) return false;
  if (text_.isEmpty()) return true;
  for (int column = 0; column < kColumns; ++column) {
    const QVariant text = findings_.data(index.siblingAtColumn(column), Qt::DisplayRole);
    if (text.toString().contains(text_, Qt::CaseInsensitive)) return true;
  }
  return false;
}

bool FindingFilter::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const Finding* a = findings_.FindingAt(left);
  const Finding* b = findings_.FindingAt(right);
  if (a == nullptr || b == nullptr) return QSortFilterProxyModel::lessThan(left, right);
  switch (left.column()) {
    case FindingModel::PlaceColumn:
      return std::tie(a->File, a->Line) < std::tie(b->File, b->Line);
    case FindingModel::SeverityColumn:
      return a->Severity < b->Severity;
    default:
      return QSortFilterProxyModel::lessThan(left, right);
  }
}

}  // namespace orrerix
