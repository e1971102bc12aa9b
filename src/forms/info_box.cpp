// SPDX-License-Identifier: MIT
#include "forms/info_box.h"

#include "forms/form_geometry.h"

namespace orrerix {
namespace {

QColor ColorOf(const Color& color) {
  return {color.Red(), color.Green(), color.Blue()};
}

QRect RectOf(const orrerix::Box& box) {
  return PixelRect(static_cast<int>(box.Left), static_cast<int>(box.Top),
                   static_cast<int>(box.Width), static_cast<int>(box.Height));
}

}  // namespace

InfoBox::InfoBox(const QString& name, QWidget* map)
    : QFrame(map), text_(new TextBox("InfoText", this)) {
  setObjectName("Shape1");
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
  colors.setColor(QPalette::Window, ColorOf(shape.BackColor.value_or(Color{})));
  colors.setColor(QPalette::WindowText, ColorOf(shape.BorderColor));
  setPalette(colors);
  const QRect place = RectOf(shape.Place);
  setGeometry(place);
  // The described text is a little narrower than its longest line; the box has room for all of it,
  // and for a scroll bar beside it.
  QRect textPlace = RectOf(text.Place).translated(-place.topLeft());
  textPlace.setRight(place.width() - 1 - frameWidth());
  text_->setGeometry(textPlace);
  text_->Show(text.Caption.value_or(""));
  show();
  raise();
}

}  // namespace orrerix
