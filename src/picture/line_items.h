// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QLineF>
#include <QPainter>
#include <QRectF>
#include <QRegion>
#include <optional>
#include <span>
#include <vector>

#include "picture/control_items.h"

namespace orrerix {

// The part of a line within a place, as shares of its length; empty if it passes by.
struct Stretch {
  double From = 0;
  double To = 1;
  bool operator==(const Stretch&) const = default;
  bool Empty() const { return From >= To; }
};

// A line as it is drawn, in the scene's coordinates.
struct MapLine {
  QLineF Place;
  LineKind Kind = LineKind::JumpGate;
  LineStyle Style = LineStyle::Solid;
  QColor Color;
  std::vector<Stretch> Pale;  // in the order along the line

  explicit MapLine(const Control& control);

  QRectF Box() const { return QRectF(Place.p1(), Place.p2()).normalized().adjusted(-2, -2, 2, 2); }
};

// Lines that follow one another in a drawing, as one item. They ignore the mouse. They are drawn in
// front of the names of systems, and fade where they cross one.
class LinesItem : public ControlItem {
 public:
  // Precondition: there is a line.
  LinesItem(std::span<const Control> lines, const ItemView& view, QGraphicsItem* parent);

  QRectF boundingRect() const override { return box_; }
  QPainterPath shape() const override { return {}; }
  void SpareLetters(const std::vector<QRectF>& letters) override;
  void MarkChanged() const override;
  void Draw(QPainter& painter, const QStyleOptionGraphicsItem& option, QWidget*) override;

 private:
  static std::optional<QRegion> WidenClip(QPainter& painter);
  void Mark(const MapLine& line) const;

  QRectF seen_;
  bool onPaper_;
  std::vector<MapLine> lines_;
  QRectF box_;
};

}  // namespace orrerix
