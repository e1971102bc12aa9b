// SPDX-License-Identifier: MIT
#include "forms/map/map_way.h"

#include <QPainter>
#include <QtMath>

#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr double kMapWayPen = 2.5;
constexpr double kHalo = 5;
constexpr double kArrow = 10;       // length, pixels
constexpr double kArrowHalf = 4.5;  // half its width
constexpr double kStop = 5;         // radius

struct WayColors {
  QColor Line;
  QColor Jump;
  QColor Halo;  // separates the line from what is below it
};

// Paper is white.
WayColors ColorsFor(bool print) {
  if (print) return {QColor(0xFFB02000), QColor(0xFF7030A0), QColor(0xC0FFFFFF)};
  return {QColor(0xFFFFC040), QColor(0xFFFF80FF), QColor::fromRgba(0xA0000010)};
}

Qt::PenStyle StyleOf(LegKind kind) {
  switch (kind) {
    case LegKind::Fly:
      return Qt::DashLine;
    case LegKind::Gate:
    case LegKind::Hole:
      return Qt::DotLine;
    default:
      return Qt::SolidLine;
  }
}

bool IsJump(LegKind kind) {
  return kind == LegKind::Gate || kind == LegKind::Hole;
}

bool IsStop(LegKind kind) {
  return kind == LegKind::Launch || kind == LegKind::Dock;
}

// An arrow in the middle of a line that is long enough for one.
QPolygonF ArrowOn(const QLineF& line) {
  if (line.length() < 1.5 * kArrow) return {};
  const QPointF along = (line.p2() - line.p1()) / line.length();
  const QPointF across(-along.y(), along.x());
  const QPointF tip = line.center() + along * (kArrow / 2);
  const QPointF base = tip - along * kArrow;
  return QPolygonF({tip, base + across * kArrowHalf, base - across * kArrowHalf});
}

}  // namespace

// Of the frame's children only the viewport, the map itself, is below it.
MapWay::MapWay(QGraphicsView& frame) : QWidget(&frame) {
  setObjectName("MapWay");
  setAttribute(Qt::WA_TransparentForMouseEvents);
  hide();
  lower();
  frame.viewport()->lower();
}

void MapWay::Show(std::vector<MapWayLeg> legs) {
  legs_ = std::move(legs);
  Follow(drawing_);
}

void MapWay::Follow(const MapDrawing& drawing) {
  drawing_ = drawing;
  drawing_.Controls.clear();
  setVisible(IsShown());
  QRectF open(0, 0, Pixels(drawing.Frame.Width), Pixels(drawing.Frame.Height));
  const QRectF panel = Pixels(drawing.PanelBox);
  if (drawing.Panel == PanelPlace::Right) open.setRight(panel.left());
  if (drawing.Panel == PanelPlace::Below) open.setBottom(panel.top());
  setGeometry(open.toAlignedRect());
  update();
}

QPointF MapWay::PointOf(const MapPlace& place) const {
  return {Pixels(drawing_.Cells.ScreenX(place.Cell, place.Point.X)),
          Pixels(drawing_.Cells.ScreenY(place.Cell, place.Point.Y))};
}

void MapWay::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const WayColors colors = ColorsFor(drawing_.PrintMode);
  painter.setPen(QPen(colors.Halo, kHalo, Qt::SolidLine, Qt::RoundCap));
  for (const MapWayLeg& leg : legs_) painter.drawLine(PointOf(leg.From), PointOf(leg.To));
  for (const MapWayLeg& leg : legs_) DrawLeg(painter, leg);
  for (const MapWayLeg& leg : legs_) {
    if (IsStop(leg.Kind)) DrawStop(painter, leg.To);
  }
  if (legs_.empty()) return;
  DrawStop(painter, legs_.front().From);
  DrawStop(painter, legs_.back().To);
}

void MapWay::DrawLeg(QPainter& painter, const MapWayLeg& leg) const {
  const WayColors colors = ColorsFor(drawing_.PrintMode);
  const QColor color = IsJump(leg.Kind) ? colors.Jump : colors.Line;
  const QLineF line(PointOf(leg.From), PointOf(leg.To));
  painter.setPen(QPen(color, kMapWayPen, StyleOf(leg.Kind), Qt::RoundCap));
  painter.drawLine(line);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawPolygon(ArrowOn(line));
}

void MapWay::DrawStop(QPainter& painter, const MapPlace& place) const {
  const WayColors colors = ColorsFor(drawing_.PrintMode);
  painter.setPen(QPen(colors.Line, kMapWayPen));
  painter.setBrush(colors.Halo);
  painter.drawEllipse(PointOf(place), kStop, kStop);
}

}  // namespace orrerix
