// SPDX-License-Identifier: MIT
#include "forms/workbench/log_model.h"

#include <array>

#include "forms/controls/captions.h"
#include "picture/plain_tool_tip.h"

namespace orrerix {
namespace {

constexpr int kLogModelColumns = 5;

TextId NameOf(LogKind kind) {
  switch (kind) {
    case LogKind::MissingFile:
      return TextId::LogMissingFile;
    case LogKind::DoubleData:
      return TextId::LogDoubleData;
    case LogKind::RowRefused:
      return TextId::LogRowRefused;
    case LogKind::MissingRing:
      return TextId::LogMissingRing;
    case LogKind::MissingPosition:
      return TextId::LogMissingPosition;
    case LogKind::MissingPackage:
      return TextId::LogMissingPackage;
    default:
      return TextId::LogOther;
  }
}

// As on disk, or as the entry names it where it is not there.
QString FileOf(const LogEntry& entry, const check::LogPlace& place) {
  if (!place.File.empty()) return QString::fromStdString(place.File);
  return QString::fromStdString(entry.File).replace('\\', '/');
}

}  // namespace

void LogModel::Show(std::vector<LogEntry> entries, std::vector<check::LogPlace> places) {
  beginResetModel();
  entries_ = std::move(entries);
  places_ = std::move(places);
  endResetModel();
}

const LogEntry* LogModel::EntryAt(const QModelIndex& index) const {
  return index.isValid() ? &entries_[static_cast<std::size_t>(index.row())] : nullptr;
}

check::LogPlace LogModel::PlaceAt(const QModelIndex& index) const {
  return index.isValid() ? places_[static_cast<std::size_t>(index.row())] : check::LogPlace{};
}

int LogModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

int LogModel::columnCount(const QModelIndex&) const {
  return kLogModelColumns;
}

QVariant LogModel::data(const QModelIndex& index, int role) const {
  const LogEntry* entry = EntryAt(index);
  if (entry == nullptr) return {};
  if (role == Qt::ToolTipRole) {
    return PlainToolTip(QString::fromStdString(entry->Text).remove('\r'));
  }
  if (role != Qt::DisplayRole) return {};
  switch (index.column()) {
    case KindColumn:
      return CaptionIn(choice_.Current, NameOf(entry->Kind));
    case FileColumn:
      return FileOf(*entry, PlaceAt(index));
    case LineColumn:
      return PlaceAt(index).Line > 0 ? QVariant(PlaceAt(index).Line) : QVariant();
    case NicknameColumn:
      return QString::fromStdString(entry->Nickname);
    default:
      return QString::fromStdString(entry->Text).simplified();
  }
}

QVariant LogModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  constexpr std::array<TextId, kLogModelColumns> heads = {
      TextId::HeadKind, TextId::HeadFile, TextId::HeadLine, TextId::HeadNickname, TextId::HeadText};
  return CaptionIn(choice_.Current, heads[static_cast<std::size_t>(section)]);
}

}  // namespace orrerix
