// SPDX-License-Identifier: MIT
#include "forms/layers/layer_symbols.h"

#include <QRadialGradient>

#include "forms/layers/layer_style.h"

namespace orrerix {
namespace {

constexpr double kSpot = 4;  // half the height of a symbol, pixels

void DrawLetters(QPainter& painter, Layer layer, const QRectF& box, const QString& text) {
  painter.setPen(InkOf(layer, false));
  painter.drawText(box, Qt::AlignCenter, text);
}

void DrawGridSymbol(QPainter& painter, const QRectF& box) {
  painter.setPen(QPen(InkOf(Layer::Sectors, false), 1, Qt::DotLine));
  for (const double part : {0.25, 0.5, 0.75}) {
    const double x = box.left() + part * box.width();
    painter.drawLine(QPointF(x, box.top() + 2), QPointF(x, box.bottom() - 2));
  }
  painter.drawLine(QPointF(box.left() + 2, box.center().y()),
                   QPointF(box.right() - 2, box.center().y()));
}

}  // namespace

void DrawSun(QPainter& painter, QPointF middle, double radius, bool onPaper) {
  painter.setPen(Qt::NoPen);
  if (!onPaper) {
    QRadialGradient glow(middle, 2 * radius);
    glow.setColorAt(0.5, QColor(255, 214, 120, 110));
    glow.setColorAt(1, QColor(255, 190, 80, 0));
    painter.setBrush(glow);
    painter.drawEllipse(middle, 2 * radius, 2 * radius);
  }
  QRadialGradient disc(middle, radius);
  disc.setColorAt(0, onPaper ? QColor(0xFFFFF2C0) : QColor(0xFFFFFFF2));
  disc.setColorAt(1, onPaper ? QColor(0xFFE0A000) : QColor(0xFFFFCE5A));
  painter.setBrush(disc);
  painter.setPen(onPaper ? QPen(QColor(0xFF805000), 1) : QPen(Qt::NoPen));
  painter.drawEllipse(middle, radius, radius);
}

void DrawPlanet(QPainter& painter, QPointF middle, double radius, bool onPaper) {
  QRadialGradient shade(middle - QPointF(0.35, 0.35) * radius, 1.4 * radius);
  shade.setColorAt(0, onPaper ? QColor(0xFFF0F4FA) : QColor(0xFFB9CBE4));
  shade.setColorAt(1, onPaper ? QColor(0xFF9AA8BC) : QColor(0xFF3D4F70));
  painter.setBrush(shade);
  painter.setPen(QPen(onPaper ? QColor(0xFF405070) : QColor(0xFF8FA8CC), radius < 3 ? 0.5 : 1));
  painter.drawEllipse(middle, radius, radius);
}

void DrawGate(QPainter& painter, QPointF middle, double radius, const QColor& color, bool isHole) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color, 2, isHole ? Qt::DotLine : Qt::SolidLine));
  painter.drawEllipse(middle, radius, radius);
}

void DrawPlatform(QPainter& painter, QPointF middle, const QColor& color) {
  painter.setPen(QPen(color.darker(300), 1));
  painter.setBrush(color);
  painter.drawPolygon(QPolygonF({middle + QPointF(0, -kSpot), middle + QPointF(kSpot, kSpot),
                                 middle + QPointF(-kSpot, kSpot)}));
}

void DrawWreck(QPainter& painter, QPointF middle, const QColor& color) {
  painter.setPen(QPen(color, 1.5));
  painter.setBrush(Qt::NoBrush);
  const double reach = 2 * kSpot;
  painter.drawPolygon(QPolygonF({middle + QPointF(0, -reach), middle + QPointF(reach, 0),
                                 middle + QPointF(0, reach), middle + QPointF(-reach, 0)}));
}

void DrawLegendSymbol(QPainter& painter, Layer layer, const QRectF& box) {
  const QPointF middle = box.center();
  switch (layer) {
    case Layer::Bodies:
      DrawSun(painter, middle - QPointF(8, 0), 4, false);
      return DrawPlanet(painter, middle + QPointF(8, 0), 5, false);
    case Layer::Gates:
      DrawGate(painter, middle - QPointF(8, 0), 5, InkOf(layer, false), false);
      return DrawGate(painter, middle + QPointF(8, 0), 5, InkOf(layer, false), true);
    case Layer::Wrecks:
      return DrawWreck(painter, middle, InkOf(layer, false));
    case Layer::Platforms:
      return DrawPlatform(painter, middle, InkOf(layer, false));
    case Layer::Sectors:
      return DrawGridSymbol(painter, box);
    default:
      return DrawLetters(painter, layer, box, "Abc");
  }
}

}  // namespace orrerix
