// SPDX-License-Identifier: MIT
#include "forms/map/info_box.h"

#include "forms/controls/control_name.h"
#include "forms/controls/form_geometry.h"

namespace orrerix {
InfoBox::InfoBox(QWidget* map) : QFrame(map), text_(new TextBox(ControlId::BoxText, this)) {
  setObjectName(NameOf(ControlId::BoxShape));
  setAutoFillBackground(true);
  // The map's view would hand down its own roles, those of lists.
  setBackgroundRole(QPalette::Window);
  setForegroundRole(QPalette::WindowText);
  setFrameStyle(QFrame::Box | QFrame::Plain);
  text_->setAccessibleName("Information");
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
  text_->setGeometry(PixelRect(text.Place).translated(-place.topLeft()));
  text_->Show(text.Caption.value_or(""));
  show();
  raise();
}

}  // namespace orrerix
