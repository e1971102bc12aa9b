// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>

namespace orrerix {

// Heads of narrow columns: their texts stand upright, from bottom to top.
class UprightHeader : public QHeaderView {
 public:
  explicit UprightHeader(QWidget* parent);

 protected:
  QSize sectionSizeFromContents(int section) const override;
  void paintSection(QPainter* painter, const QRect& place, int section) const override;
};

}  // namespace orrerix
