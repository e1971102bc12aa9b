// SPDX-License-Identifier: MIT
#include "forms/price_table_view.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>
#include <cmath>

#include "forms/form_geometry.h"
#include "picture/form_font.h"

namespace orrerix {
namespace {

constexpr int kColumns = 3;
constexpr int kMargin = 4;  // pixels between a text and the ends of its column

int Pixel(double twips) {
  return static_cast<int>(std::lround(Pixels(twips)));
}

QColor ColorOf(const Color& color) {
  return {color.Red(), color.Green(), color.Blue()};
}

// Letters that were measured to fill a label edge to edge become narrower, not lower, to leave its
// margins free.
void DrawText(QPainter& painter, const QRect& place, int alignment, const QString& text) {
  const double width = QFontMetricsF(painter.font()).horizontalAdvance(text);
  const double narrow = width > place.width() ? place.width() / width : 1;
  painter.save();
  painter.translate(place.left(), 0);
  painter.scale(narrow, 1);
  painter.drawText(QRectF(0, place.top(), place.width() / narrow, place.height()),
                   alignment | Qt::TextSingleLine | Qt::TextDontClip, text);
  painter.restore();
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
    painter->setPen(index.data(Qt::ForegroundRole).value<QColor>());
    DrawText(*painter, option.rect.adjusted(kMargin, 0, -kMargin, 0),
             index.data(Qt::TextAlignmentRole).toInt(), index.data().toString());
    if (option.state & QStyle::State_Selected) {
      painter->setPen(Qt::white);
      painter->drawLine(option.rect.topLeft(), option.rect.topRight());
      painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }
  }
};

}  // namespace

void PriceTableModel::Show(const ControlList& labels) {
  beginResetModel();
  rows_.clear();
  for (const Control& label : labels) {
    const bool goesOn = !rows_.empty() && rows_.back().front().Place.Top == label.Place.Top &&
                        rows_.back().front().Name != label.Name && label.Name != "PricesHead";
    if (!goesOn) rows_.emplace_back();
    rows_.back().push_back(label);
  }
  endResetModel();
}

int PriceTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int PriceTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumns;
}

const Control* PriceTableModel::LabelAt(const QModelIndex& index) const {
  const ControlList& row = Row(index.row());
  const auto column = static_cast<std::size_t>(index.column());
  return column < row.size() ? &row[column] : nullptr;
}

QVariant PriceTableModel::data(const QModelIndex& index, int role) const {
  const Control* label = LabelAt(index);
  if (label == nullptr) return {};
  switch (role) {
    case Qt::DisplayRole:
      return QString::fromStdString(label->Caption.value_or(""));
    case Qt::FontRole:
      return FormFont(label->FontSize.value_or(1));
    case Qt::BackgroundRole:
      return ColorOf(label->BackColor.value_or(Color{}));
    case Qt::ForegroundRole:
      return ColorOf(label->ForeColor.value_or(Color{}));
    case Qt::TextAlignmentRole: {
      const bool isFigure = index.column() > 0;
      return static_cast<int>((isFigure ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    case Qt::ToolTipRole:
      // A trade has more to tell than its label shows.
      return label->ToolTip ? QString::fromStdString(label->Caption.value_or("")) : QVariant();
    default:
      return {};
  }
}

PriceTableView::PriceTableView(QWidget* parent) : QTableView(parent), model_(this) {
  setObjectName("PriceTable");
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

void PriceTableView::Show(const ControlList& labels) {
  clearSpans();
  model_.Show(labels);
  int bottom = 0;
  for (int row = 0; row < model_.rowCount(); ++row) {
    const ControlList& cells = model_.Row(row);
    const auto& box = cells.front().Place;
    bottom = Pixel(box.Bottom());
    setRowHeight(row, bottom - Pixel(box.Top));
    if (cells.size() == 1) {
      setSpan(row, 0, 1, kColumns);
      continue;
    }
    for (int column = 0; column < kColumns; ++column) {
      const auto& cell = cells[static_cast<std::size_t>(column)].Place;
      setColumnWidth(column, Pixel(cell.Right()) - Pixel(cell.Left));
    }
  }
  if (labels.empty()) return;
  const auto& head = labels.front().Place;
  if (model_.rowCount() == kColumns) {  // heads alone
    for (int column = 0; column < kColumns; ++column) {
      setColumnWidth(column, Pixel(head.Width) / kColumns);
    }
  }
  // The labels reach to the window's outer edge; what its frame hides goes off the last column,
  // so that figures end before it.
  const int left = Pixel(head.Left);
  const int edge = parentWidget() == nullptr ? Pixel(head.Right()) : parentWidget()->width();
  const int width = std::min(Pixel(head.Right()), edge) - left;
  const int hidden = Pixel(head.Right()) - left - width;
  const int last = kColumns - 1;
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
    for (const Control& label : model_.Row(index.row())) {
      cells << QString::fromStdString(label.Caption.value_or(""));
    }
    lines << cells.join('\t');
  }
  if (!lines.isEmpty()) QGuiApplication::clipboard()->setText(lines.join('\n'));
}

}  // namespace orrerix
