// SPDX-License-Identifier: MIT
#include <QPainterPath>
#include <cmath>

#include "logo_parts.h"

namespace orrerix {

namespace {

constexpr QPointF Middle(LogoWidth / 2.0, LogoHeight / 2.0);

QPointF PointOnRing(double radius, double turn) {
  const Spot spot = OnRing(radius, turn);
  return {spot.X, spot.Y};
}

// Night blue metal with the fine lines of a drawing on it.
void DrawPlate(QPainter& painter) {
  QLinearGradient metal(0, LogoHeight, 300, 20);
  metal.setColorAt(0, QColor(10, 20, 44));
  metal.setColorAt(1, QColor(26, 44, 78));
  painter.fillRect(QRectF(0, 0, LogoWidth, LogoHeight), metal);
  painter.setPen(QPen(QColor(120, 170, 220, 20), 0.7));
  for (int i = 0; i <= LogoWidth; i += 20) painter.drawLine(i, 0, i, LogoHeight);
  for (int i = 10; i <= LogoHeight; i += 20) painter.drawLine(0, i, LogoWidth, i);
}

QBrush Brass(QPointF middle, double radius) {
  QLinearGradient brass(middle + QPointF(-radius, -radius), middle + QPointF(radius, radius));
  brass.setColorAt(0.00, QColor(250, 226, 158));
  brass.setColorAt(0.35, QColor(206, 158, 76));
  brass.setColorAt(0.65, QColor(132, 88, 34));
  brass.setColorAt(1.00, QColor(214, 170, 92));
  return brass;
}

QPainterPath Gear(QPointF middle, double radius, int teeth, double turn) {
  QPainterPath gear;
  const double depth = 4;
  for (int i = 0; i < teeth * 4; ++i) {
    const double r = (i / 2) % 2 == 0 ? radius : radius - depth;
    const double angle = (turn + (i + (i % 2 == 0 ? 0.25 : -0.25)) / (teeth * 4.0)) * FullTurn;
    const QPointF point = middle + QPointF(std::cos(angle), std::sin(angle)) * r;
    if (i == 0)
      gear.moveTo(point);
    else
      gear.lineTo(point);
  }
  gear.closeSubpath();
  gear.addEllipse(middle, radius * 0.22, radius * 0.22);
  for (int i = 0; i < 5; ++i) {
    const double angle = (turn + i / 5.0) * FullTurn;
    const QPointF hole = middle + QPointF(std::cos(angle), std::sin(angle)) * (radius * 0.54);
    gear.addEllipse(hole, radius * 0.19, radius * 0.19);
  }
  return gear;
}

void DrawGear(QPainter& painter, QPointF middle, double radius, int teeth, double turn) {
  const QPainterPath gear = Gear(middle, radius, teeth, turn);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 110));
  painter.drawPath(gear.translated(2.5, 3.5));
  painter.setBrush(Brass(middle, radius));
  painter.setPen(QPen(QColor(70, 42, 14), 0.8));
  painter.drawPath(gear);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(90, 58, 20, 190), 0.9));
  painter.drawEllipse(middle, radius - 7, radius - 7);
}

void DrawRing(QPainter& painter, double radius) {
  QPainterPath ring(PointOnRing(radius, 0));
  for (int i = 1; i <= 180; ++i) ring.lineTo(PointOnRing(radius, i / 180.0));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(0, 0, 0, 100), 5));
  painter.drawPath(ring.translated(2, 4));
  painter.setPen(QPen(QColor(74, 46, 16), 5));
  painter.drawPath(ring);
  painter.setPen(QPen(Brass(Middle, radius), 3.8));
  painter.drawPath(ring);
  painter.setPen(QPen(QColor(84, 54, 18, 200), 0.7));
  const int marks = static_cast<int>(radius / 58 * 36);
  for (int i = 0; i < marks; ++i) {
    const double turn = i / static_cast<double>(marks);
    const double half = i % 6 == 0 ? 2.2 : 1.1;
    painter.drawLine(PointOnRing(radius - half, turn), PointOnRing(radius + half, turn));
  }
}

void DrawBall(QPainter& painter, QPointF middle, double radius) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 0, 0, 110));
  painter.drawEllipse(middle + QPointF(2, 4), radius, radius);
  QRadialGradient ball(middle, radius, middle + QPointF(-radius, -radius) * 0.4);
  ball.setColorAt(0.0, QColor(255, 246, 214));
  ball.setColorAt(0.3, QColor(232, 188, 104));
  ball.setColorAt(0.8, QColor(140, 92, 36));
  ball.setColorAt(1.0, QColor(82, 50, 18));
  painter.setBrush(ball);
  painter.drawEllipse(middle, radius, radius);
}

void DrawArm(QPainter& painter, QPointF end) {
  painter.setPen(QPen(QColor(60, 36, 12), 4.4, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(Middle, end);
  painter.setPen(QPen(QColor(224, 182, 104), 2.4, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(Middle, end);
}

}  // namespace

void DrawLogoMachine(QPainter& painter) {
  DrawPlate(painter);
  DrawGear(painter, {78, 104}, 40, 24, 0.01);
  DrawGear(painter, {139, 134}, 29, 18, 0.015);
  DrawGear(painter, {24, 66}, 27, 16, 0.02);
  for (const OrreryRing& ring : OrreryRings) DrawRing(painter, ring.Radius);
  for (const OrreryRing& ring : OrreryRings) {
    DrawArm(painter, PointOnRing(ring.Radius, ring.Turn));
  }
  for (const OrreryRing& ring : OrreryRings) {
    DrawBall(painter, PointOnRing(ring.Radius, ring.Turn), ring.World);
  }
  DrawBall(painter, Middle, SunRadius);
}

}  // namespace orrerix
