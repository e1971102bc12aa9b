// SPDX-License-Identifier: MIT
#include "forms/map/tools_entry.h"

#include <utility>

#include "forms/controls/captions.h"
#include "map/panel/map_options.h"
#include "picture/form_font.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr int kToolsEntryFont = 9;
constexpr int kToolsEntryGap = 16;  // pixels
constexpr int kLabelInset = 4;      // below the letters of a label, pixels
constexpr const char* kEntryStyle =
    "QPushButton { border: none; background: transparent; color: #80d0ff; padding: 0; }"
    "QPushButton:hover, QPushButton:focus { color: #ffffff; text-decoration: underline; }";
constexpr const char* kNoticeStyle =
    "QPushButton { border: 1px solid #5070b0; background: #101c4c; color: #ffe080;"
    " padding: 4px 10px; text-align: left; }"
    "QPushButton:hover, QPushButton:focus { border-color: #ffffff; }";

// The place of the language's name, which stands at the right of its label, in a list of controls
// and their children; empty if it is not there.
QRectF LanguagePlace(const ControlList& controls, const QPointF& corner) {
  for (const Control& control : controls) {
    const QRectF place = Pixels(control.Place).translated(corner);
    if (control.Id == ControlId::OptionLabel && control.Index == kLanguageLabel) {
      const QFontMetrics letters(FormFont(control.FontSize.value_or(kToolsEntryFont)));
      const QString name = QString::fromStdString(control.Caption.value_or(""));
      const QSizeF size(letters.horizontalAdvance(name), letters.height());
      return {place.bottomRight() - QPointF(size.width(), size.height() + kLabelInset), size};
    }
    const QRectF inner = LanguagePlace(control.Children, place.topLeft());
    if (!inner.isEmpty()) return inner;
  }
  return {};
}

}  // namespace

ToolsEntry::ToolsEntry(QAbstractScrollArea& frame, const LanguageChoice& choice,
                       std::function<void()> onClick)
    : button_(new QPushButton(frame.viewport())), choice_(choice) {
  button_->setObjectName("Tools");
  button_->setFlat(true);
  button_->setFont(FormFont(kToolsEntryFont));
  button_->setStyleSheet(kEntryStyle);
  button_->setCursor(Qt::PointingHandCursor);
  button_->setFocusPolicy(Qt::TabFocus);
  button_->hide();
  QObject::connect(button_, &QPushButton::clicked, std::move(onClick));
}

void ToolsEntry::Follow(const MapDrawing& drawing) {
  const QRectF language = LanguagePlace(drawing.Controls, {});
  button_->setVisible(!drawing.PrintMode && !language.isEmpty());
  button_->setText(CaptionIn(choice_.Current, TextId::Tools));
  button_->setToolTip(CaptionIn(choice_.Current, TextId::ToolsTip));
  const QSize size(button_->sizeHint().width(), static_cast<int>(language.height()));
  button_->setGeometry({QPoint(static_cast<int>(language.left()) - size.width() - kToolsEntryGap,
                               static_cast<int>(language.top())),
                        size});
  button_->raise();
}

MapNotice::MapNotice(QAbstractScrollArea& frame, std::function<void()> onClick)
    : button_(new QPushButton(frame.viewport())) {
  button_->setObjectName("MapNotice");
  button_->setFont(FormFont(kToolsEntryFont));
  button_->setStyleSheet(kNoticeStyle);
  button_->setFocusPolicy(Qt::TabFocus);
  button_->hide();
  QObject::connect(button_, &QPushButton::clicked, std::move(onClick));
}

void MapNotice::Show(const QString& text) {
  button_->setText(text);
  button_->adjustSize();
  button_->move(kToolsEntryGap,
                button_->parentWidget()->height() - button_->height() - kToolsEntryGap);
  button_->show();
  button_->raise();
}

}  // namespace orrerix
