// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>
#include <QRect>
#include <functional>
#include <optional>
#include <vector>

#include "map/redraw.h"
#include "shell/text_id.h"
#include "space/summary.h"

namespace orrerix {

// What the map shows in numbers and names, in the room of the news while there are none. A click,
// or Enter, on a line follows its link.
class SummaryView : public QListWidget {
 public:
  // `choice`, the language in use, outlives this.
  SummaryView(QWidget* frame, const LanguageChoice& choice,
              std::function<void(const SummaryLine&)> onLink);

  // Shows lines where a drawing of the map has room for news; hides where it has none. `isWhole`:
  // they are about all systems.
  void Show(std::vector<SummaryLine> lines, bool isWhole, const MapDrawing& drawing);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString TextOf(const SummaryLine& line) const;
  QString TipOf(const SummaryLine& line) const;
  void AddLine(const SummaryLine& line);
  void AddHead(const QString& text);
  void Follow(int row);

  const LanguageChoice& choice_;
  std::function<void(const SummaryLine&)> onLink_;
  std::vector<SummaryLine> lines_;
  bool isWhole_ = false;
  Language shownIn_ = Language::English;
};

// The room below the news' own line, pixels of the map frame; nothing if it is too small.
std::optional<QRect> SummaryRoom(const MapDrawing& drawing);

}  // namespace orrerix
