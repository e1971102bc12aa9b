// SPDX-License-Identifier: MIT
// Keys of the map, and what they and clicks on gates do.
#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QShortcut>
#include <QToolTip>

#include "forms/orrerix_main.h"
#include "forms/workbench/bookmarks_page.h"
#include "forms/workbench/find_page.h"
#include "picture/plain_tool_tip.h"
#include "picture/twips.h"
#include "shell/language_texts.h"

namespace orrerix {

// Keys of the map that need no tools.
void OrrerixMain::MakeKeys() {
  const auto onKey = [this](const QKeySequence& keys, auto act) {
    QObject::connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, act] {
      if (phase_ == Phase::Map) (this->*act)();
    });
  };
  onKey(Qt::CTRL | Qt::SHIFT | Qt::Key_F, &OrrerixMain::FindAnything);
  onKey(Qt::CTRL | Qt::Key_D, &OrrerixMain::AddBookmark);
  onKey(QKeySequence::Copy, &OrrerixMain::CopyCoordinates);
  onKey(QKeySequence::Save, &OrrerixMain::SaveMapPicture);
}

void OrrerixMain::ShowCell(MapCell cell) {
  const ZoomRectangle view{cell.X, cell.Y, cell.X, cell.Y};
  if (phase_ != Phase::Map || view == map_.State().Zoom.Current()) return;
  map_.State().Zoom.PushZoomStack(parts_.Log, view);
  Redraw();
}

// A station's bookmark opens its window; of what is gone from the universe its view is left.
void OrrerixMain::ShowBookmark(const Bookmark& mark) {
  if (phase_ != Phase::Map || (!mark.Place.empty() && ShowOnMap(mark.Place))) return;
  if (mark.View == map_.State().Zoom.Current()) return;
  map_.State().Zoom.PushZoomStack(parts_.Log, mark.View);
  Redraw();
}

void OrrerixMain::FindAnything() {
  const QString text = QString::fromStdString(search_.Text());
  tools_.ShowPage(TextId::FindPage);
  findPage_->Begin(text);
}

void OrrerixMain::AddBookmark() {
  const Bookmark mark = actions_.BookmarkAt(actions_.Pointer());
  tools_.ShowPage(TextId::BookmarksPage);
  bookmarksPage_->Add(mark);
}

void OrrerixMain::CopyCoordinates() {
  const QString text = QString::fromStdString(actions_.CoordinatesAt(actions_.Pointer()));
  if (text.isEmpty()) return;
  QGuiApplication::clipboard()->setText(text);
  QToolTip::showText(
      QCursor::pos(),
      PlainToolTip(FormatIn(parts_.Speech.Current, TextId::CoordinatesCopied, text.toStdString())),
      &map_.Frame());
}

void OrrerixMain::SaveMapPicture() {
  const QString answer = actions_.SaveAs(*this);
  if (!answer.isEmpty()) QToolTip::showText(QCursor::pos(), PlainToolTip(answer), &map_.Frame());
}

// Shows the system at the other side.
void OrrerixMain::GoThroughGate(const Control& icon) {
  const Gate* gate = space_.GateAt(Pixels(icon.Place).center());
  if (gate == nullptr) return;
  const MapCell there = gate->OtherCell;
  mapController_.Box().EndHover();
  if (mapController_.PushZoomStack({there.X, there.Y, there.X, there.Y})) Redraw();
}

// The first Escape takes the way off the map; without one it goes back, as on every map.
bool OrrerixMain::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && way_->IsShown() && watched == &map_.Frame() &&
      static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
    way_->Hide();
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

}  // namespace orrerix
