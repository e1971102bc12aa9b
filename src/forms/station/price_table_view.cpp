// SPDX-License-Identifier: MIT
#include "forms/station/price_table_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>
#include <utility>

#include "forms/controls/control_name.h"
#include "forms/controls/form_geometry.h"
#include "forms/station/price_colors.h"
#include "picture/form_font.h"
#include "picture/plain_tool_tip.h"

namespace orrerix {
namespace {

constexpr int kPriceTableViewMargin = 4;  // pixels between a text and the ends of its column

int Pixel(double twips) {
  return static_cast<int>(std::lround(Pixels(twips)));
}

constexpr int kSmallestLetters = 8;  // points
constexpr int kLargestLetters = 11;

// Twips. A head stands over all columns, which have four, one and one sixth of its width.
double ColumnWidth(const PriceTableModel::Line& line, int column) {
  if (line.Row != nullptr) return line.Label(column)->Place.Width;
  return line.Head->Place.Width * (column == 0 ? 4 : 1) / 6;
}

class LabelDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const auto ground = index.data(Qt::BackgroundRole).value<QColor>();
    painter->fillRect(option.rect, ground);
    if (index.column() > 0) {
      // Figures may fill their columns; a line parts them.
      painter->setPen(ground.darker());
      painter->drawLine(option.rect.topLeft(), option.rect.bottomLeft());
    }
    painter->setFont(index.data(Qt::FontRole).value<QFont>());
    const auto letters = index.data(Qt::ForegroundRole).value<QColor>();
    painter->setPen(letters);
    const QRect place = option.rect.adjusted(kPriceTableViewMargin, 0, -kPriceTableViewMargin, 0);
    painter->drawText(place, index.data(Qt::TextAlignmentRole).toInt() | Qt::TextSingleLine,
                      QFontMetrics(painter->font())
                          .elidedText(index.data().toString(), Qt::ElideRight, place.width()));
    if (option.state & QStyle::State_Selected) {
      painter->setPen(QPen(letters, 2));
      painter->drawLine(option.rect.topLeft(), option.rect.topRight());
      painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }
  }
};

}  // namespace

void PriceTableModel::Show(std::vector<PriceTable> tables) {
  beginResetModel();
  tables_ = std::move(tables);
  lines_.clear();
  for (const PriceTable& table : tables_) {
    lines_.push_back({&table.Head, nullptr, table.Group});
    for (const PriceRow& row : table.Rows) lines_.push_back({nullptr, &row, table.Group});
  }
  fontSize_ = LetterSize();
  endResetModel();
}

const PriceLabel* PriceTableModel::Line::Label(int column) const {
  if (Row == nullptr) return column == 0 ? Head : nullptr;
  return column == 0 ? &Row->Name : column == 1 ? &Row->Price : &Row->Difference;
}

int PriceTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(lines_.size());
}

int PriceTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kPriceColumns;
}

// Beside a head the caption of the column.
QString PriceTableModel::Text(const Line& line, int column) const {
  if (const PriceLabel* label = line.Label(column)) return QString::fromStdString(label->Caption);
  return QString::fromStdString(
      texts_.Text(column == 1 ? TextId::HeadPrice : TextId::HeadDifference));
}

// The largest size within what reads well at which no text is cut; the smallest if there is none.
int PriceTableModel::LetterSize() const {
  int size = kLargestLetters;
  while (size > kSmallestLetters && !Fits(size)) --size;
  return size;
}

bool PriceTableModel::Fits(int fontSize) const {
  const QFontMetrics letters(FormFont(fontSize));
  QFont bold = FormFont(fontSize);
  bold.setBold(true);
  const QFontMetrics heads(bold);
  return std::all_of(lines_.begin(), lines_.end(), [&](const Line& line) {
    if (letters.height() > Pixel(line.Label(0)->Place.Height)) return false;
    for (int column = 0; column < kPriceColumns; ++column) {
      const bool isTitle = line.Row == nullptr && column == 0;
      const int wide = (isTitle ? heads : letters).horizontalAdvance(Text(line, column));
      if (wide > Pixel(ColumnWidth(line, column)) - 2 * kPriceTableViewMargin) return false;
    }
    return true;
  });
}

QVariant PriceTableModel::data(const QModelIndex& index, int role) const {
  const Line& line = At(index.row());
  const PriceColors colors = line.Row == nullptr ? PriceHeadColors() : PriceRowColors(line.Group);
  switch (role) {
    case Qt::DisplayRole:
      return Text(line, index.column());
    case Qt::FontRole: {
      QFont font = FormFont(fontSize_);
      font.setBold(line.Row == nullptr && index.column() == 0);
      return font;
    }
    case Qt::BackgroundRole:
      return colors.Ground;
    case Qt::ForegroundRole:
      return colors.Letters;
    case Qt::TextAlignmentRole: {
      const bool isFigure = index.column() > 0;
      return static_cast<int>((isFigure ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    case Qt::ToolTipRole:
      // A text may be cut off in its cell.
      return PlainToolTip(Text(line, index.column()).toStdString());
    default:
      return {};
  }
}

PriceTableView::PriceTableView(TextSource& texts, QWidget* parent)
    : QTableView(parent), model_(texts, this) {
  setObjectName(NameOf(ControlId::PriceTable));
  setModel(&model_);
  setItemDelegate(new LabelDelegate(this));
  setFrameShape(QFrame::NoFrame);
  setShowGrid(false);
  setSelectionBehavior(SelectRows);
  setTabKeyNavigation(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
    header->hide();
    header->setMinimumSectionSize(0);
    header->setSectionResizeMode(QHeaderView::Fixed);
  }
  QPalette colors = palette();
  colors.setColor(QPalette::Base, Qt::transparent);
  setPalette(colors);
}

void PriceTableView::Show(std::vector<PriceTable> tables) {
  model_.Show(std::move(tables));
  if (model_.rowCount() == 0) return;
  bool hasPrices = false;
  int bottom = 0;
  for (int row = 0; row < model_.rowCount(); ++row) {
    const PriceTableModel::Line& line = model_.At(row);
    const auto& box = line.Label(0)->Place;
    bottom = Pixel(box.Bottom());
    setRowHeight(row, bottom - Pixel(box.Top));
    if (line.Row == nullptr) continue;
    hasPrices = true;
    for (int column = 0; column < kPriceColumns; ++column) {
      const auto& cell = line.Label(column)->Place;
      setColumnWidth(column, Pixel(cell.Right()) - Pixel(cell.Left));
    }
  }
  const auto& head = model_.At(0).Label(0)->Place;
  if (!hasPrices) {
    for (int column = 0; column < kPriceColumns; ++column) {
      setColumnWidth(column, Pixel(head.Width) * (column == 0 ? 4 : 1) / 6);
    }
  }
  // The labels reach to the window's outer edge; what its frame hides goes off the last column,
  // so that figures end before it.
  const int left = Pixel(head.Left);
  const int edge = parentWidget() == nullptr ? Pixel(head.Right()) : parentWidget()->width();
  const int width = std::min(Pixel(head.Right()), edge) - left;
  const int hidden = Pixel(head.Right()) - left - width;
  const int last = kPriceColumns - 1;
  setColumnWidth(last, std::max(0, columnWidth(last) - hidden));
  setGeometry(left, Pixel(head.Top), width, bottom - Pixel(head.Top));
}

void PriceTableView::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return Copy();
  QTableView::keyPressEvent(event);
}

void PriceTableView::Copy() const {
  QModelIndexList selected = selectionModel()->selectedRows();
  std::sort(selected.begin(), selected.end());
  QStringList lines;
  for (const QModelIndex& index : selected) {
    QStringList cells;
    for (int column = 0; column < kPriceColumns; ++column) {
      const PriceLabel* label = model_.At(index.row()).Label(column);
      if (label != nullptr) cells << QString::fromStdString(label->Caption);
    }
    lines << cells.join('\t');
  }
  if (!lines.isEmpty()) QGuiApplication::clipboard()->setText(lines.join('\n'));
}

}  // namespace orrerix
