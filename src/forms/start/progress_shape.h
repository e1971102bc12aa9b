// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "map/drawing_list.h"

namespace orrerix {

// One of the three rectangles of the progress picture.
class ProgressShape : public QWidget {
 public:
  ProgressShape(Color border, Color fill, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor border_;
  QColor fill_;
};

}  // namespace orrerix
