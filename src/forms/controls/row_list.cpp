// SPDX-License-Identifier: MIT
#include "forms/controls/row_list.h"

#include <QHelpEvent>
#include <QToolTip>

#include "forms/controls/narrow_scroll_bar.h"
#include "picture/plain_tool_tip.h"

namespace orrerix {

RowList::RowList(QWidget* parent) : QListWidget(parent) {
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBar(new NarrowScrollBar(this));
}

bool RowList::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QListWidget::viewportEvent(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const QListWidgetItem* item = itemAt(help->pos());
  const bool isCut = item != nullptr &&
                     sizeHintForIndex(indexFromItem(item)).width() > visualItemRect(item).width();
  if (isCut) {
    QToolTip::showText(help->globalPos(), PlainToolTip(item->text().toStdString()), this);
  } else {
    QToolTip::hideText();
  }
  return true;
}

int RowList::RowHeight() const {
  return count() == 0 ? fontMetrics().height() : sizeHintForRow(0);
}

void RowList::updateGeometries() {
  QMargins margins = viewportMargins();
  const int room = viewport()->height() + margins.bottom();
  const int spare = room > RowHeight() ? room % RowHeight() : 0;
  if (margins.bottom() != spare) {
    margins.setBottom(spare);
    setViewportMargins(margins);
  }
  QListWidget::updateGeometries();
}

}  // namespace orrerix
