// SPDX-License-Identifier: MIT
#include "forms/workbench/relations/upright_header.h"

#include <QPainter>
#include <algorithm>

namespace orrerix {
namespace {

constexpr int kMostLength = 190;  // pixels
constexpr int kHeadPadding = 8;
constexpr const char* kUp = "\u25B2 ";
constexpr const char* kDown = "\u25BC ";

}  // namespace

UprightHeader::UprightHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setSectionsClickable(true);
  setHighlightSections(true);
  setSortIndicatorClearable(true);
}

QSize UprightHeader::sectionSizeFromContents(int section) const {
  const QString text = model()->headerData(section, Qt::Horizontal).toString();
  const int length = fontMetrics().horizontalAdvance(kDown + text) + 2 * kHeadPadding;
  return {fontMetrics().height() + kHeadPadding, std::min(length, kMostLength)};
}

// The style paints the section without a text.
void UprightHeader::paintSection(QPainter* painter, const QRect& place, int section) const {
  QString text = model()->headerData(section, Qt::Horizontal).toString();
  if (isSortIndicatorShown() && sortIndicatorSection() == section) {
    text.prepend(sortIndicatorOrder() == Qt::DescendingOrder ? kDown : kUp);
  }
  QStyleOptionHeader option;
  initStyleOption(&option);
  option.rect = place;
  option.section = section;
  painter->save();
  style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
  painter->translate(place.left(), place.bottom() + 1);
  painter->rotate(-90);
  const QRect turned(kHeadPadding, 0, place.height() - 2 * kHeadPadding, place.width());
  const bool isCurrent = selectionModel() != nullptr &&
                         selectionModel()->currentIndex().isValid() &&
                         selectionModel()->currentIndex().column() == section;
  QFont letters = font();
  letters.setBold(isCurrent);
  painter->setFont(letters);
  painter->setPen(palette().color(QPalette::ButtonText));
  painter->drawText(turned, Qt::AlignLeft | Qt::AlignVCenter,
                    QFontMetrics(letters).elidedText(text, Qt::ElideRight, turned.width()));
  painter->restore();
}

}  // namespace orrerix
