// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_chart.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "forms/program_style.h"
#include "picture/plain_tool_tip.h"

namespace orrerix {
namespace {

constexpr int kTicks = 4;  // about as many steps an axis has
constexpr QRgb kPointColor = 0xffffd24a;
constexpr QRgb kPointOnLight = 0xff9a5a00;
constexpr double kReach = 10;  // pixels from a point that count as on it
constexpr double kRadius = 3.5;
constexpr double kMarkRadius = 7;
constexpr QSize kLeastSize{260, 160};

QString TickText(double number) {
  return QString::number(number, 'g', 6);
}

// 1, 2 or 5 times a power of ten.
double RoundStep(double length) {
  const double least = length / kTicks;
  const double power = std::pow(10, std::floor(std::log10(least)));
  for (const double factor : {1, 2, 5}) {
    if (factor * power >= least) return factor * power;
  }
  return 10 * power;
}

}  // namespace

AtlasChart::AtlasChart(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(kLeastSize);
}

// From 0, or from the lowest number below it, in whole steps.
AtlasChart::Range AtlasChart::RangeOf(const std::vector<ChartPoint>& points,
                                      double ChartPoint::*axis) {
  double least = 0;
  double most = 0;
  for (const ChartPoint& point : points) {
    least = std::min(least, point.*axis);
    most = std::max(most, point.*axis);
  }
  if (least == most) return {};
  const double step = RoundStep(most - least);
  return {step * std::floor(least / step), step * std::ceil(most / step), step};
}

std::vector<double> AtlasChart::TicksOf(const Range& range) {
  const auto count = static_cast<int>(std::lround((range.To - range.From) / range.Step));
  std::vector<double> ticks;
  for (int i = 0; i <= count; ++i) ticks.push_back(range.From + i * range.Step);
  return ticks;
}

void AtlasChart::Show(std::vector<ChartPoint> points, const QString& headX, const QString& headY) {
  points_ = std::move(points);
  std::stable_sort(points_.begin(), points_.end(),
                   [](const ChartPoint& a, const ChartPoint& b) { return a.X < b.X; });
  headX_ = headX;
  headY_ = headY;
  x_ = RangeOf(points_, &ChartPoint::X);
  y_ = RangeOf(points_, &ChartPoint::Y);
  update();
}

void AtlasChart::Mark(std::optional<std::size_t> row) {
  marked_ = row;
  update();
}

QRectF AtlasChart::Area() const {
  const int line = fontMetrics().height();
  const int left = fontMetrics().horizontalAdvance("-0.00e+00") + 6;
  return QRectF(rect()).adjusted(left, 1.5 * line + 4, -line, -2.5 * line);
}

QPointF AtlasChart::PlaceOf(const ChartPoint& point) const {
  const QRectF area = Area();
  return {area.left() + area.width() * (point.X - x_.From) / (x_.To - x_.From),
          area.bottom() - area.height() * (point.Y - y_.From) / (y_.To - y_.From)};
}

const ChartPoint* AtlasChart::Nearest(const QPointF& place) const {
  const ChartPoint* nearest = nullptr;
  double best = kReach;
  for (const ChartPoint& point : points_) {
    const QPointF way = PlaceOf(point) - place;
    const double distance = std::hypot(way.x(), way.y());
    if (distance > best) continue;
    best = distance;
    nearest = &point;
  }
  return nearest;
}

void AtlasChart::PaintAxes(QPainter& painter) const {
  const QRectF area = Area();
  const int line = fontMetrics().height();
  QColor faint = palette().color(QPalette::WindowText);
  faint.setAlpha(60);
  for (double x : TicksOf(x_)) {
    const double at = PlaceOf({x, y_.From, 0, {}}).x();
    painter.setPen(faint);
    painter.drawLine(QPointF(at, area.top()), QPointF(at, area.bottom()));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRectF(at - 40, area.bottom() + 2, 80, line), Qt::AlignHCenter, TickText(x));
  }
  for (double y : TicksOf(y_)) {
    const double at = PlaceOf({x_.From, y, 0, {}}).y();
    painter.setPen(faint);
    painter.drawLine(QPointF(area.left(), at), QPointF(area.right(), at));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRectF(0, at - line / 2.0, area.left() - 4, line), Qt::AlignRight,
                     TickText(y));
  }
  painter.drawText(QRectF(0, area.bottom() + line + 2, width(), line), Qt::AlignHCenter, headX_);
  painter.drawText(QRectF(4, 2, width() - 8, line), Qt::AlignLeft, headY_);
}

void AtlasChart::PaintPoints(QPainter& painter) const {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(IsLight(palette()) ? kPointOnLight : kPointColor));
  for (const ChartPoint& point : points_) painter.drawEllipse(PlaceOf(point), kRadius, kRadius);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette().color(QPalette::WindowText), 2));
  for (const ChartPoint& point : points_) {
    if (point.Row == marked_) painter.drawEllipse(PlaceOf(point), kMarkRadius, kMarkRadius);
  }
}

void AtlasChart::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (points_.empty()) {
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, emptyText_);
  } else {
    PaintAxes(painter);
    PaintPoints(painter);
  }
  if (!hasFocus()) return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void AtlasChart::mousePressEvent(QMouseEvent* event) {
  const ChartPoint* point = Nearest(event->position());
  if (point != nullptr && OnChosen) OnChosen(point->Row);
}

void AtlasChart::keyPressEvent(QKeyEvent* event) {
  const int step = event->key() == Qt::Key_Right ? 1 : event->key() == Qt::Key_Left ? -1 : 0;
  if (step == 0 || points_.empty()) return QWidget::keyPressEvent(event);
  const auto marked = std::find_if(points_.begin(), points_.end(), [this](const ChartPoint& point) {
    return point.Row == marked_;
  });
  const auto last = static_cast<int>(points_.size()) - 1;
  const int next = marked == points_.end()
                       ? 0
                       : std::clamp(static_cast<int>(marked - points_.begin()) + step, 0, last);
  if (OnChosen) OnChosen(points_[static_cast<std::size_t>(next)].Row);
}

void AtlasChart::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void AtlasChart::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

bool AtlasChart::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QWidget::event(event);
  const auto* help = static_cast<QHelpEvent*>(event);
  const ChartPoint* point = Nearest(help->pos());
  if (point == nullptr) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(help->globalPos(), PlainToolTip(point->Name), this);
  }
  return true;
}

}  // namespace orrerix
