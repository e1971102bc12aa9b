// SPDX-License-Identifier: MIT
#include "forms/map/info_box.h"

#include "forms/controls/control_name.h"
#include "forms/controls/form_geometry.h"

namespace orrerix {
InfoBox::InfoBox(const QString& name, QWidget* map)
    : QFrame(map), text_(new TextBox(ControlId::BoxText, this)) {
  setObjectName(NameOf(ControlId::BoxShape));
  setAutoFillBackground(true);
  // The map's view would hand down its own roles, those of lists.
  setBackgroundRole(QPalette::Window);
  setForegroundRole(QPalette::WindowText);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  text_->setAccessibleName(name);
  hide();
}

void InfoBox::Show(const ControlList& box) {
  if (box.empty()) return hide();
  const Control& shape = box.front();
  const Control& text = box.back();
  QPalette colors = palette();
  colors.setColor(QPalette::Window, ToQColor(shape.BackColor.value_or(Color{})));
  colors.setColor(QPalette::WindowText, ToQColor(shape.BorderColor));
  setPalette(colors);
  const QRect place = PixelRect(shape.Place);
  setGeometry(place);
  // The calculated width is a little less than the longest line takes; the box has room for all of
  // it, and for a scroll bar beside it.
  QRect textPlace = PixelRect(text.Place).translated(-place.topLeft());
  textPlace.setRight(place.width() - 1 - frameWidth());
  text_->setGeometry(textPlace);
  text_->Show(text.Caption.value_or(""));
  show();
  raise();
}

}  // namespace orrerix
