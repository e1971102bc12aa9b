// SPDX-License-Identifier: MIT
// The large info box.
#pragma once

#include <QFrame>

#include "forms/controls/text_box.h"
#include "map/drawing_list.h"

namespace orrerix {

// The large info box on the map: a shape with its text, as a widget, so that its text can be
// scrolled and copied, and the map below is not painted again with each text.
class InfoBox : public QFrame {
 public:
  // `name` is what a screen reader calls it.
  InfoBox(const QString& name, QWidget* map);

  // Shows the two controls; hides itself if there are none.
  void Show(const ControlList& box);

 private:
  TextBox* text_;
};

}  // namespace orrerix
