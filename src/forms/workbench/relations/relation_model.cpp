// SPDX-License-Identifier: MIT
#include "forms/workbench/relations/relation_model.h"

#include <algorithm>
#include <numeric>

#include "forms/controls/captions.h"
#include "forms/workbench/relations/attitude_look.h"
#include "picture/plain_tool_tip.h"
#include "shell/language_texts.h"

namespace orrerix {
namespace {

QString TextFor(const std::string& text) {
  return QString::fromStdString(text);
}

bool HoldsName(const RelatedFaction& faction, const QString& text) {
  return TextFor(faction.Name).contains(text, Qt::CaseInsensitive) ||
         TextFor(faction.Nickname).contains(text, Qt::CaseInsensitive);
}

}  // namespace

void RelationModel::Show(std::vector<RelatedFaction> factions) {
  beginResetModel();
  factions_ = std::move(factions);
  sortedBy_ = -1;
  columns_.resize(factions_.size());
  std::iota(columns_.begin(), columns_.end(), std::size_t{0});
  std::stable_sort(columns_.begin(), columns_.end(), [this](std::size_t a, std::size_t b) {
    return TextFor(factions_[a].Name).compare(TextFor(factions_[b].Name), Qt::CaseInsensitive) < 0;
  });
  Arrange();
  endResetModel();
}

void RelationModel::Filter(const QString& text) {
  beginResetModel();
  filter_ = text.trimmed();
  Arrange();
  endResetModel();
}

void RelationModel::sort(int column, Qt::SortOrder order) {
  emit layoutAboutToBeChanged();
  sortedBy_ = column;
  isDescending_ = order == Qt::DescendingOrder;
  const std::vector<std::size_t> before = rows_;
  Arrange();
  for (const QModelIndex& old : persistentIndexList()) {
    const std::size_t faction = before[static_cast<std::size_t>(old.row())];
    const auto place = std::find(rows_.begin(), rows_.end(), faction) - rows_.begin();
    changePersistentIndex(old, index(static_cast<int>(place), old.column()));
  }
  emit layoutChanged();
}

bool RelationModel::IsRowBefore(std::size_t a, std::size_t b) const {
  const std::size_t to = columns_[static_cast<std::size_t>(sortedBy_)];
  const auto& first = factions_[a].Towards[to];
  const auto& second = factions_[b].Towards[to];
  if (!first || !second) return first.has_value() && !second;
  return isDescending_ ? *first > *second : *first < *second;
}

void RelationModel::Arrange() {
  rows_.clear();
  for (const std::size_t faction : columns_) {
    if (HoldsName(factions_[faction], filter_)) rows_.push_back(faction);
  }
  if (sortedBy_ < 0 || sortedBy_ >= columnCount()) return;
  std::stable_sort(rows_.begin(), rows_.end(),
                   [this](std::size_t a, std::size_t b) { return IsRowBefore(a, b); });
}

QString RelationModel::Describe(std::size_t from, std::size_t to) const {
  const auto& reputation = factions_[from].Towards[to];
  const TextId attitude =
      reputation ? LookOf(AttitudeOf(*reputation)).Name : TextId::RelationUnknown;
  const std::string number = reputation ? fmt::format("{:g}", *reputation) : std::string("-");
  return TextFor(FormatIn(choice_.Current, TextId::RelationOf, factions_[from].Name,
                          factions_[to].Name, CaptionIn(choice_.Current, attitude).toStdString(),
                          number));
}

QString RelationModel::TextOf(const QModelIndex& index) const {
  return Describe(rows_[static_cast<std::size_t>(index.row())],
                  columns_[static_cast<std::size_t>(index.column())]);
}

QString RelationModel::TextBack(const QModelIndex& index) const {
  return Describe(columns_[static_cast<std::size_t>(index.column())],
                  rows_[static_cast<std::size_t>(index.row())]);
}

int RelationModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int RelationModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant RelationModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::ToolTipRole) return PlainToolTip(TextOf(index) + "\n" + TextBack(index));
  if (role == Qt::AccessibleTextRole) return TextOf(index);
  if (role == Qt::TextAlignmentRole) return Qt::AlignCenter;
  const auto& reputation = factions_[rows_[static_cast<std::size_t>(index.row())]]
                               .Towards[columns_[static_cast<std::size_t>(index.column())]];
  if (!reputation) return {};
  const AttitudeLook look = LookOf(AttitudeOf(*reputation));
  if (role == Qt::DisplayRole) return look.Symbol;
  if (role == Qt::BackgroundRole && look.Ground.isValid()) return look.Ground;
  if (role == Qt::ForegroundRole && look.Letters.isValid()) return look.Letters;
  return {};
}

QVariant RelationModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const std::vector<std::size_t>& places = orientation == Qt::Horizontal ? columns_ : rows_;
  if (section < 0 || section >= static_cast<int>(places.size())) return {};
  const RelatedFaction& faction = factions_[places[static_cast<std::size_t>(section)]];
  if (role == Qt::DisplayRole) return TextFor(faction.Name);
  if (role == Qt::ToolTipRole) return PlainToolTip(TextFor(faction.Name + "\n" + faction.Nickname));
  return {};
}

}  // namespace orrerix
