// SPDX-License-Identifier: MIT
#include "forms/map/search_panel_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <functional>
#include <utility>

#include "forms/controls/control_name.h"
#include "forms/controls/form_geometry.h"
#include "forms/controls/plain_label.h"
#include "forms/controls/row_list.h"
#include "picture/form_font.h"

namespace orrerix {
namespace {

constexpr int kSearchPanelViewFont = 9;
constexpr int kCaptionFont = 7;
constexpr int kSearchPanelViewGap = 60;  // between text box and close button, twips

// A light edge parts it from the panel that it covers.
constexpr const char* kSearchPanelViewStyle =
    "#%1 { background: #060a26; border: 1px solid #5ab4dc; }"
    "QLineEdit, QListWidget { background: #0a1034; color: #e0e8ff; border: 1px solid #3a54a0; }"
    "QLabel { color: #00cccc; }"
    "QLineEdit:focus, QListWidget:focus { border-color: #7ac8f0; }";

// Acts on the Escape key wherever on a panel's window the focus is, while the panel is seen.
class EscapeKey : public QObject {
 public:
  EscapeKey(QWidget& panel, std::function<void()> act)
      : QObject(&panel), panel_(panel), act_(std::move(act)) {
    QApplication::instance()->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
    if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Escape || !panel_.isVisible())
      return false;
    if (static_cast<QWidget*>(watched)->window() != panel_.window()) return false;
    act_();
    return true;
  }

 private:
  QWidget& panel_;
  std::function<void()> act_;
};

}  // namespace

SearchPanelView::SearchPanelView(SearchEvents& events, QWidget* map)
    : QFrame(map), events_(events) {
  setObjectName(NameOf(ControlId::SearchFrame));
  setAutoFillBackground(true);
  setFrameShape(QFrame::StyledPanel);
  setStyleSheet(QString(kSearchPanelViewStyle).arg(NameOf(ControlId::SearchFrame)));
  setFont(FormFont(kSearchPanelViewFont));
  caption_ = new PlainLabel(this);
  caption_->setObjectName(NameOf(ControlId::SearchCaption));
  caption_->setFont(FormFont(kCaptionFont));
  new EscapeKey(*this, [this] { events_.CloseSearch(); });
  text_ = new QLineEdit(this);
  text_->setObjectName(NameOf(ControlId::SearchText));
  text_->installEventFilter(this);
  QObject::connect(text_, &QLineEdit::textChanged, this,
                   [this](const QString& text) { events_.ChangeSearchText(text.toStdString()); });
  close_ = new QToolButton(this);
  close_->setObjectName(NameOf(ControlId::SearchClose));
  close_->setText("\u00D7");
  close_->setAutoRaise(true);
  QObject::connect(close_, &QToolButton::clicked, this, [this] { events_.CloseSearch(); });
  goods_ = new QToolButton(this);
  goods_->setObjectName("FindGood");
  goods_->setFont(FormFont(kCaptionFont));
  goods_->setAutoRaise(true);
  goods_->setCursor(Qt::PointingHandCursor);
  QObject::connect(goods_, &QToolButton::clicked, this, [this] { events_.FindGood(); });
  subSearch_ = AddList(ControlId::FoundList);
  QObject::connect(subSearch_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) events_.ChooseFound(static_cast<std::size_t>(row));
  });
  list_ = AddList(ControlId::PlaceList);
  QObject::connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) events_.ChoosePlace(static_cast<std::size_t>(row));
  });
  QObject::connect(list_, &QListWidget::itemDoubleClicked, this, [this] { events_.GoToPlace(); });
  hide();
}

QListWidget* SearchPanelView::AddList(ControlId id) {
  auto* list = new RowList(this);
  list->setObjectName(NameOf(id));
  list->installEventFilter(this);
  return list;
}

void SearchPanelView::ShowCaptions(TextSource& texts) {
  const auto caption = [&](TextId id) { return QString::fromStdString(texts.Text(id)); };
  caption_->setText(caption(TextId::SearchHead));
  text_->setAccessibleName(caption(TextId::SearchTextName));
  close_->setAccessibleName(caption(TextId::SearchCloseName));
  goods_->setText(caption(TextId::SearchGoods));
  goods_->setToolTip(caption(TextId::SearchGoodsTip));
  goods_->setAccessibleName(caption(TextId::SearchGoodsTip));
  subSearch_->setAccessibleName(caption(TextId::SearchFoundName));
  list_->setAccessibleName(caption(TextId::SearchPlacesName));
}

void SearchPanelView::Show(const SearchPanel& panel, TextSource& texts) {
  if (!panel.Visible()) return hide();
  ShowCaptions(texts);
  setGeometry(PixelRect(panel.Frame()));
  const QRect textRect = PixelRect(panel.TextBox());
  caption_->setGeometry(textRect.left(), 0, width() - 2 * textRect.left(), textRect.top());
  text_->setGeometry(textRect);
  PlaceGoods(textRect.top());
  const int gap = static_cast<int>(Pixels(kSearchPanelViewGap));
  close_->setGeometry(textRect.right() + gap, textRect.top(), width() - textRect.right() - 2 * gap,
                      textRect.height());
  subSearch_->setGeometry(PixelRect(panel.SubSearchBox()));
  // Where the list takes the place of the text box it leaves the close button free.
  QRect listRect = PixelRect(panel.ListBox());
  if (!panel.TextVisible()) listRect.setRight(textRect.right());
  list_->setGeometry(listRect);
  const QString typed = QString::fromStdString(panel.Text());
  if (text_->text() != typed) {
    const QSignalBlocker quiet(text_);
    text_->setText(typed);
  }
  text_->setVisible(panel.TextVisible());
  // Places fill the one list, which lies over the other.
  subSearch_->setVisible(panel.SubSearchVisible() && panel.Type() != SearchType::Place);
  Fill(*subSearch_, shownSubSearch_, panel.SubSearch());
  Fill(*list_, shownList_, panel.List());
  show();
  raise();
}

// At the right of the panel's caption.
void SearchPanelView::PlaceGoods(int height) {
  const int wide = goods_->sizeHint().width();
  goods_->setGeometry(width() - wide - 1, 1, wide, height - 1);
}

void SearchPanelView::Fill(QListWidget& list, SearchList& shown, const SearchList& wanted) {
  const QSignalBlocker quiet(&list);
  if (shown.Rows != wanted.Rows) {
    QStringList names;
    for (const SearchRow& row : wanted.Rows) names << QString::fromStdString(row.RealName);
    list.clear();
    list.addItems(names);
  }
  shown = wanted;
  list.setCurrentRow(wanted.Selected ? static_cast<int>(*wanted.Selected) : -1);
}

void SearchPanelView::Focus(SearchControl control) {
  switch (control) {
    case SearchControl::None:
      return;
    case SearchControl::Text:
      return text_->setFocus();
    case SearchControl::SubSearch:
      return subSearch_->setFocus();
    case SearchControl::List:
      return list_->setFocus();
  }
}

bool SearchPanelView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    return KeyPress(watched, static_cast<QKeyEvent*>(event)->key());
  }
  return QFrame::eventFilter(watched, event);
}

bool SearchPanelView::KeyPress(QObject* control, int key) {
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      events_.EnterKey(control == text_        ? SearchControl::Text
                       : control == subSearch_ ? SearchControl::SubSearch
                                               : SearchControl::List);
      return true;
    case Qt::Key_Up:
      return control == text_ && events_.MoveKey(-1);
    case Qt::Key_Down:
      return control == text_ && events_.MoveKey(1);
    default:
      return false;
  }
}

}  // namespace orrerix
