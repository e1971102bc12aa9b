// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/print_table.h"

#include <QFile>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>

#include "picture/form_font.h"
#include "shell/language_texts.h"

namespace orrerix {
namespace {

constexpr int kLetterPoints = 7;
constexpr int kPointsPerInch = 72;
constexpr int kMostLetters = 36;  // a cell's width
constexpr int kSampledRows = 500;
constexpr double kGap = 0.8;  // between columns, of the letters' height
constexpr double kLineSpacing = 1.3;
constexpr int kPdfDotsPerInch = 300;
constexpr double kMarginMillimeters = 12;

using Columns = std::vector<int>;

// As large on any paper, whatever its dots.
QFont FontOn(const QPaintDevice& paper) {
  QFont font = FormFont(kLetterPoints);
  font.setPixelSize(kLetterPoints * paper.logicalDpiY() / kPointsPerInch);
  return font;
}

// One painting of a table: all lengths are dots of the paper.
class TablePrinter {
 public:
  TablePrinter(QPagedPaintDevice& paper, QPainter& painter, const PrintedTable& table,
               Language language)
      : paper_(paper),
        painter_(painter),
        table_(table),
        language_(language),
        font_(FontOn(paper)),
        metrics_(font_, &paper),
        area_(painter.viewport()) {
    painter_.setFont(font_);
    Measure();
  }

  void Print() {
    const std::vector<Columns> strips = Strips();
    const int pagesDown = std::max(1, (table_.RowCount + RowsOnPage() - 1) / RowsOnPage());
    const int pages = pagesDown * static_cast<int>(strips.size());
    int page = 0;
    for (int down = 0; down < pagesDown; ++down) {
      for (const Columns& strip : strips) {
        if (page > 0) paper_.newPage();
        PrintPage(strip, down * RowsOnPage(), ++page, pages);
      }
    }
  }

 private:
  double Line() const { return metrics_.height() * kLineSpacing; }
  double Gap() const { return metrics_.height() * kGap; }
  double HeadHeight() const { return headLines_ * metrics_.height() + Line() / 2; }
  double TopHeight() const { return 1.5 * Line(); }
  int RowsOnPage() const {
    return std::max(1, static_cast<int>((area_.height() - TopHeight() - HeadHeight()) / Line()));
  }

  void Measure() {
    const double most = kMostLetters * metrics_.averageCharWidth();
    for (int column = 0; column < table_.Heads.size(); ++column) {
      double width = 0;
      const QStringList lines = table_.Heads[column].split('\n');
      headLines_ = std::max(headLines_, static_cast<int>(lines.size()));
      for (const QString& line : lines) width = std::max(width, metrics_.horizontalAdvance(line));
      for (int row = 0; row < std::min(table_.RowCount, kSampledRows); ++row) {
        width = std::max(width, metrics_.horizontalAdvance(table_.Cell(row, column)));
      }
      widths_.push_back(std::min(width, most) + 1);
    }
  }

  // The columns of each page across.
  std::vector<Columns> Strips() const {
    std::vector<Columns> strips;
    double used = 0;
    for (int column = 0; column < static_cast<int>(widths_.size()); ++column) {
      const double width = widths_[static_cast<std::size_t>(column)] + Gap();
      const bool isFull =
          !strips.empty() && strips.back().size() > 1 && used + width > area_.width();
      if (strips.empty() || isFull) {
        strips.emplace_back();
        used = 0;
        if (column > 0) {
          strips.back().push_back(0);
          used = widths_.front() + Gap();
        }
      }
      strips.back().push_back(column);
      used += width;
    }
    return strips;
  }

  void PrintPage(const Columns& strip, int firstRow, int page, int pages) {
    const QString number =
        QString::fromStdString(FormatIn(language_, TextId::AtlasPageNumber, page, pages));
    const QRectF top(0, 0, area_.width(), TopHeight());
    painter_.drawText(top, Qt::AlignLeft | Qt::AlignTop, table_.Title);
    painter_.drawText(top, Qt::AlignRight | Qt::AlignTop, number);
    const int lastRow = std::min(table_.RowCount, firstRow + RowsOnPage());
    const double ruler = TopHeight() + headLines_ * metrics_.height() + Line() / 4;
    painter_.drawLine(QPointF(0, ruler), QPointF(area_.width(), ruler));
    double left = 0;
    for (const int column : strip) {
      const double width = widths_[static_cast<std::size_t>(column)];
      const auto side =
          table_.IsNumber[static_cast<std::size_t>(column)] ? Qt::AlignRight : Qt::AlignLeft;
      painter_.drawText(QRectF(left, TopHeight(), width, headLines_ * metrics_.height()),
                        side | Qt::AlignTop, table_.Heads[column]);
      for (int row = firstRow; row < lastRow; ++row) {
        const QRectF place(left, TopHeight() + HeadHeight() + (row - firstRow) * Line(), width,
                           Line());
        painter_.drawText(place, side | Qt::AlignVCenter,
                          metrics_.elidedText(table_.Cell(row, column), Qt::ElideRight, width));
      }
      left += width + Gap();
    }
  }

  QPagedPaintDevice& paper_;
  QPainter& painter_;
  const PrintedTable& table_;
  Language language_;
  QFont font_;
  QFontMetricsF metrics_;
  QRectF area_;
  std::vector<double> widths_;
  int headLines_ = 1;
};

}  // namespace

bool PrintTable(QPagedPaintDevice& paper, const PrintedTable& table, Language language) {
  QPainter painter;
  if (!painter.begin(&paper)) return false;
  TablePrinter(paper, painter, table, language).Print();
  return painter.end();
}

bool WriteTablePdf(const QString& name, const PrintedTable& table, Language language) {
  QFile file(name);
  if (!file.open(QIODevice::WriteOnly)) return false;
  QPdfWriter paper(&file);
  paper.setResolution(kPdfDotsPerInch);
  paper.setPageSize(QPageSize(QPageSize::A4));
  paper.setPageOrientation(QPageLayout::Landscape);
  paper.setPageMargins(QMarginsF(1, 1, 1, 1) * kMarginMillimeters, QPageLayout::Millimeter);
  paper.setTitle(table.Title);
  return PrintTable(paper, table, language) && file.flush() && file.error() == QFile::NoError;
}

}  // namespace orrerix
