// SPDX-License-Identifier: MIT
#include "forms/map/search_panel_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QSignalBlocker>
#include <algorithm>
#include <functional>
#include <utility>

#include "forms/controls/control_name.h"
#include "forms/controls/form_geometry.h"
#include "forms/controls/plain_label.h"
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

// The first column takes what the others leave.
ColumnList::Column HeadOf(SearchColumn column, bool isUpper, TextSource& texts) {
  constexpr double systemShare = 0.3;
  constexpr double priceShare = 0.21;
  const auto caption = [&](TextId id) { return QString::fromStdString(texts.Text(id)); };
  switch (column) {
    case SearchColumn::Name:
      return {caption(isUpper ? TextId::HeadName : TextId::KindPlace), 0, false};
    case SearchColumn::System:
      return {caption(TextId::HeadSystem), systemShare, false};
    case SearchColumn::Price:
      return {caption(TextId::HeadPrice), priceShare, true};
  }
  return {};
}

QString CellOf(SearchColumn column, const SearchDetail& detail) {
  if (column == SearchColumn::System) return QString::fromStdString(detail.System);
  if (column != SearchColumn::Price || !detail.Price) return {};
  return QLocale().toString(static_cast<qlonglong>(*detail.Price));
}

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
  subSearch_ = AddList(ControlId::FoundList, SearchControl::SubSearch);
  QObject::connect(subSearch_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) events_.ChooseFound(static_cast<std::size_t>(row));
  });
  list_ = AddList(ControlId::PlaceList, SearchControl::List);
  QObject::connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row >= 0) events_.ChoosePlace(static_cast<std::size_t>(row));
  });
  QObject::connect(list_, &QListWidget::itemDoubleClicked, this, [this] { events_.GoToPlace(); });
  hide();
}

ColumnList* SearchPanelView::AddList(ControlId id, SearchControl control) {
  auto* list = new ColumnList(this);
  list->setObjectName(NameOf(id));
  list->installEventFilter(this);
  list->OnHead = [this, control](int head) {
    const auto& columns = columns_[control == SearchControl::SubSearch ? 0 : 1];
    events_.SortList(control, columns[static_cast<std::size_t>(head)]);
  };
  return list;
}

void SearchPanelView::ShowColumns(ColumnList& list, const SearchPanel& panel, SearchControl control,
                                  TextSource& texts) {
  const bool isUpper = control == SearchControl::SubSearch;
  std::vector<SearchColumn>& columns = columns_[isUpper ? 0 : 1];
  columns = panel.ColumnsOf(control);
  std::vector<ColumnList::Column> shown;
  shown.reserve(columns.size());
  for (const SearchColumn column : columns) shown.push_back(HeadOf(column, isUpper, texts));
  double first = 1;
  for (std::size_t i = 1; i < shown.size(); ++i) first -= shown[i].Share;
  shown.front().Share = first;
  list.SetColumns(std::move(shown), QString::fromStdString(texts.Text(TextId::SortTip)));
  const auto& sorting = (isUpper ? panel.SubSearch() : panel.List()).Sorting;
  const auto found =
      sorting ? std::find(columns.begin(), columns.end(), sorting->By) : columns.end();
  list.ShowSorting(found == columns.end() ? -1 : static_cast<int>(found - columns.begin()),
                   sorting && sorting->Descending);
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
  ShowColumns(*subSearch_, panel, SearchControl::SubSearch, texts);
  ShowColumns(*list_, panel, SearchControl::List, texts);
  Fill(*subSearch_, shownSubSearch_, panel.SubSearch(), columns_[0]);
  Fill(*list_, shownList_, panel.List(), columns_[1]);
  show();
  raise();
}

// At the right of the panel's caption.
void SearchPanelView::PlaceGoods(int height) {
  const int wide = goods_->sizeHint().width();
  goods_->setGeometry(width() - wide - 1, 1, wide, height - 1);
}

void SearchPanelView::Fill(ColumnList& list, SearchList& shown, const SearchList& wanted,
                           const std::vector<SearchColumn>& columns) {
  const QSignalBlocker quiet(&list);
  if (shown.Rows != wanted.Rows || shown.Details != wanted.Details) {
    list.clear();
    for (std::size_t row = 0; row < wanted.Rows.size(); ++row) {
      const QString name = QString::fromStdString(wanted.Rows[row].RealName);
      QStringList cells;
      for (std::size_t i = 1; i < columns.size(); ++i) {
        cells << CellOf(columns[i], wanted.Details[row]);
      }
      auto* item = new QListWidgetItem(name, &list);
      item->setData(ColumnList::kCellsRole, cells);
      item->setData(Qt::AccessibleTextRole, (QStringList(name) + cells).join(", "));
    }
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
