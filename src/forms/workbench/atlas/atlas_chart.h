// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

namespace orrerix {

// A row of a table as a point of a chart.
struct ChartPoint {
  double X = 0;
  double Y = 0;
  std::size_t Row = 0;
  QString Name;
};

// Points between two axes with their units. A click on a point, or the arrow keys from one to the
// next along the axis across, choose its row.
class AtlasChart : public QWidget {
 public:
  explicit AtlasChart(QWidget* parent);

  // What is written where there is no point.
  void SetEmptyText(const QString& text) { emptyText_ = text; }

  // Called with the row of a point that the player chose.
  std::function<void(std::size_t)> OnChosen;

  void Show(std::vector<ChartPoint> points, const QString& headX, const QString& headY);

  // Marks the point of a row.
  void Mark(std::optional<std::size_t> row);

  // The place of a point in the widget.
  QPointF PlaceOf(const ChartPoint& point) const;

  const std::vector<ChartPoint>& Points() const { return points_; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  struct Range {
    double From = 0;
    double To = 1;
    double Step = 1;  // between two ticks
  };
  static Range RangeOf(const std::vector<ChartPoint>& points, double ChartPoint::*axis);
  static std::vector<double> TicksOf(const Range& range);
  QRectF Area() const;
  const ChartPoint* Nearest(const QPointF& place) const;
  void PaintAxes(QPainter& painter) const;
  void PaintPoints(QPainter& painter) const;

  QString emptyText_;
  std::vector<ChartPoint> points_;  // from left to right
  QString headX_;
  QString headY_;
  Range x_;
  Range y_;
  std::optional<std::size_t> marked_;  // a row
};

}  // namespace orrerix
