// SPDX-License-Identifier: MIT
#include "forms/map/map_marks.h"

#include <QPainter>

#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr QRgb kMark = 0xFFFFC040;
constexpr QRgb kMarkGround = 0x28FFC040;
constexpr int kPen = 2;
constexpr double kCorner = 6;

}  // namespace

MapMarks::MapMarks(QAbstractScrollArea& frame) : QWidget(frame.viewport()) {
  setObjectName("MapMarks");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
}

void MapMarks::Mark(std::vector<MapCell> cells) {
  cells_ = std::move(cells);
  Follow(drawing_);
}

void MapMarks::Follow(const MapDrawing& drawing) {
  drawing_ = drawing;
  drawing_.Controls.clear();
  setVisible(!cells_.empty() && !drawing.PrintMode);
  QRectF open(0, 0, Pixels(drawing.Frame.Width), Pixels(drawing.Frame.Height));
  const QRectF panel = Pixels(drawing.PanelBox);
  if (drawing.Panel == PanelPlace::Right) open.setRight(panel.left());
  if (drawing.Panel == PanelPlace::Below) open.setBottom(panel.top());
  setGeometry(open.toAlignedRect());
  update();
}

void MapMarks::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(kMark), kPen));
  painter.setBrush(QColor::fromRgba(kMarkGround));
  for (const MapCell& cell : cells_) {
    const QRectF box = Pixels(drawing_.Cells.CellBox(cell.X, cell.Y));
    painter.drawRoundedRect(box.adjusted(kPen, kPen, -kPen, -kPen), kCorner, kCorner);
  }
}

}  // namespace orrerix
