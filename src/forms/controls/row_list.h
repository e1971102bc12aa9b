// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>

namespace orrerix {

// A list of one-line rows that shows whole rows only: what is left below the last of them stays
// free. A row that is too long for the list shows its whole text as a tool tip.
class RowList : public QListWidget {
 public:
  explicit RowList(QWidget* parent);

 protected:
  void updateGeometries() override;
  bool viewportEvent(QEvent* event) override;

 private:
  int RowHeight() const;
};

}  // namespace orrerix
