// SPDX-License-Identifier: MIT
#include "forms/controls/column_list.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "picture/plain_tool_tip.h"

namespace orrerix {
namespace {

constexpr int kCellMargin = 3;  // pixels between a text and the ends of its column
constexpr const char* kHeadStyle =
    "QPushButton { border: none; border-bottom: 1px solid #3a54a0; background: #101c4c;"
    " color: #c8d8ff; padding: 0 2px; text-align: %1; }"
    "QPushButton:hover { background: #1c2c60; }"
    "QPushButton:focus { border: 1px solid #80ffff; }";

class CellDelegate : public QStyledItemDelegate {
 public:
  explicit CellDelegate(ColumnList* list) : QStyledItemDelegate(list), list_(*list) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    list_.style()->drawControl(QStyle::CE_ItemViewItem, &row, painter, &list_);
    painter->save();
    painter->setFont(option.font);
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    painter->setPen(option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    for (int i = 0; i < static_cast<int>(list_.Columns().size()); ++i) {
      const QRect cell = list_.CellRect(option.rect, i).adjusted(kCellMargin, 0, -kCellMargin, 0);
      const bool isNumber = list_.Columns()[static_cast<std::size_t>(i)].IsNumber;
      const QString text = option.fontMetrics.elidedText(ColumnList::CellText(index, i),
                                                         Qt::ElideRight, cell.width());
      painter->drawText(cell, (isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter, text);
    }
    painter->restore();
  }

 private:
  const ColumnList& list_;
};

}  // namespace

ColumnList::ColumnList(QWidget* parent) : RowList(parent) {
  setItemDelegate(new CellDelegate(this));
}

void ColumnList::SetColumns(std::vector<Column> columns, const QString& headTip) {
  if (columns == columns_) return;
  columns_ = std::move(columns);
  while (heads_.size() < columns_.size()) {
    auto* head = new QPushButton(this);
    const int column = static_cast<int>(heads_.size());
    head->setObjectName(QString("Head%1").arg(column));
    head->setFocusPolicy(Qt::TabFocus);
    QObject::connect(head, &QPushButton::clicked, this, [this, column] {
      if (OnHead) OnHead(column);
    });
    heads_.push_back(head);
  }
  for (std::size_t i = 0; i < heads_.size(); ++i) {
    heads_[i]->setVisible(i < columns_.size());
    if (i >= columns_.size()) continue;
    heads_[i]->setStyleSheet(QString(kHeadStyle).arg(columns_[i].IsNumber ? "right" : "left"));
    heads_[i]->setToolTip(headTip);
    heads_[i]->setAccessibleName(columns_[i].Head);
    heads_[i]->setAccessibleDescription(headTip);
  }
  ShowSorting(sortedBy_, descending_);
  PlaceHeads();
}

void ColumnList::ShowSorting(int column, bool descending) {
  sortedBy_ = column;
  descending_ = descending;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const bool isSorted = static_cast<int>(i) == column;
    const QString mark = !isSorted ? QString() : descending ? " \u25BC" : " \u25B2";
    heads_[i]->setText(columns_[i].Head + mark);
  }
}

QString ColumnList::CellText(const QModelIndex& index, int column) {
  if (column == 0) return index.data().toString();
  return index.data(kCellsRole).toStringList().value(column - 1);
}

QRect ColumnList::CellRect(const QRect& row, int column) const {
  double left = 0;
  for (int i = 0; i < column; ++i) left += columns_[static_cast<std::size_t>(i)].Share;
  const double right = left + columns_[static_cast<std::size_t>(column)].Share;
  const auto at = [&](double share) {
    return row.left() + static_cast<int>(std::lround(share * row.width()));
  };
  return {at(left), row.top(), at(right) - at(left), row.height()};
}

void ColumnList::PlaceHeads() {
  const int height = columns_.empty() ? 0 : fontMetrics().height() + 2 * kCellMargin;
  QMargins margins = viewportMargins();
  if (margins.top() != height) {
    margins.setTop(height);
    setViewportMargins(margins);
  }
  const QRect row(viewport()->x(), frameWidth(), viewport()->width(), height);
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    heads_[i]->setGeometry(CellRect(row, static_cast<int>(i)));
  }
}

void ColumnList::updateGeometries() {
  RowList::updateGeometries();
  PlaceHeads();
}

void ColumnList::resizeEvent(QResizeEvent* event) {
  RowList::resizeEvent(event);
  PlaceHeads();
}

bool ColumnList::IsCut(const QModelIndex& index) const {
  for (int i = 0; i < static_cast<int>(columns_.size()); ++i) {
    const int room = CellRect(visualRect(index), i).width() - 2 * kCellMargin;
    if (fontMetrics().horizontalAdvance(CellText(index, i)) > room) return true;
  }
  return false;
}

bool ColumnList::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return RowList::viewportEvent(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const QModelIndex index = indexAt(help->pos());
  if (!index.isValid() || !IsCut(index)) {
    QToolTip::hideText();
    return true;
  }
  QStringList cells;
  for (int i = 0; i < static_cast<int>(columns_.size()); ++i) {
    const QString text = CellText(index, i);
    if (!text.isEmpty()) cells << text;
  }
  QToolTip::showText(help->globalPos(), PlainToolTip(cells.join(", ").toStdString()), this);
  return true;
}

}  // namespace orrerix
