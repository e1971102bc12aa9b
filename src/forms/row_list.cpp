// SPDX-License-Identifier: MIT
#include "forms/row_list.h"

namespace orrerix {

RowList::RowList(QWidget* parent) : QListWidget(parent) {
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
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
