// SPDX-License-Identifier: MIT
// What leads from the map to the tools.
#pragma once

#include <QAbstractScrollArea>
#include <QPushButton>
#include <functional>

#include "map/redraw.h"
#include "shell/text_id.h"

namespace orrerix {

// The way from the map to the tools: a word beside the language. It is a widget of its own, since
// the list of the map's controls holds what belongs to the map only.
class ToolsEntry {
 public:
  // The button belongs to `frame`; `choice`, the language in use, outlives this.
  ToolsEntry(QAbstractScrollArea& frame, const LanguageChoice& choice,
             std::function<void()> onClick);

  // Puts it beside the language of a drawing; hides it where there is none, and in print.
  void Follow(const MapDrawing& drawing);

 private:
  QPushButton* button_;
  const LanguageChoice& choice_;
};

// A line over the map's lower edge that can be clicked, such as an offer to import again.
class MapNotice {
 public:
  MapNotice(QAbstractScrollArea& frame, std::function<void()> onClick);

  void Show(const QString& text);
  void Hide() { button_->hide(); }

 private:
  QPushButton* button_;
};

}  // namespace orrerix
