// SPDX-License-Identifier: MIT
#include "picture/line_items.h"

#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPen>
#include <QRegion>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <utility>

#include "picture/pool_painting.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

constexpr QColor kHalo(150, 190, 255, 190);
constexpr QColor kDotGround(0, 0, 16, 110);
constexpr double kPale = 0.3;  // of a line in front of letters

// Lines that pass what can be seen by so many pixels leave nothing in it, however wide they are.
constexpr double kLineMargin = 8;

// Cuts what lies outside [low, high] on one axis off a stretch.
Stretch Cut(Stretch stretch, double start, double way, double low, double high) {
  if (way == 0) return start < low || start > high ? Stretch{0, 0} : stretch;
  const auto [first, last] = std::minmax({(low - start) / way, (high - start) / way});
  return {std::max(stretch.From, first), std::min(stretch.To, last)};
}

Stretch StretchWithin(const QLineF& line, const QRectF& place) {
  const Stretch across = Cut({}, line.x1(), line.dx(), place.left(), place.right());
  return Cut(across, line.y1(), line.dy(), place.top(), place.bottom());
}

// Draws the lines of one item with one painter.
class LinePainter {
 public:
  LinePainter(QPainter& painter, bool onPaper)
      : painter_(painter),
        onPaper_(onPaper),
        ratio_(painter.device()->devicePixelRatioF()),
        smooth_(painter.testRenderHint(QPainter::Antialiasing)) {}

  void Draw(const MapLine& line) const {
    // A line along the pixels is sharp on one row of them, and a pale band between two.
    const bool isStraight = line.Place.dx() == 0 || line.Place.dy() == 0;
    if (isStraight) painter_.setRenderHint(QPainter::Antialiasing, false);
    double done = 0;
    for (const Stretch& pale : line.Pale) {
      if (pale.From > done) DrawStretch(line, {done, pale.From});
      painter_.setOpacity(kPale);
      DrawStretch(line, {std::max(done, pale.From), pale.To});
      painter_.setOpacity(1);
      done = std::max(done, pale.To);
    }
    if (done < 1) DrawStretch(line, {done, 1});
    if (isStraight) painter_.setRenderHint(QPainter::Antialiasing, smooth_);
  }

 private:
  void DrawStretch(const MapLine& line, const Stretch& stretch) const {
    if (stretch.Empty()) return;
    const QLineF part(line.Place.pointAt(stretch.From), line.Place.pointAt(stretch.To));
    if (!onPaper_) {
      if (line.Kind == LineKind::TradeLane) DrawUnder(part, kHalo);
      if (line.Kind == LineKind::JumpHole) DrawUnder(part, kDotGround);
    }
    painter_.setPen(PenOf(line));
    painter_.drawLine(part);
  }

  // Pure blue is hardly visible on a dark sky, so it is drawn between two light edges, by which
  // colour-blind players can tell a lane from a gate's line as well. Grey dots get a dark edge
  // for bright gas.
  void DrawUnder(const QLineF& part, const QColor& color) const {
    QPen pen(color, 3 * ratio_);
    pen.setCosmetic(true);
    pen.setCapStyle(Qt::FlatCap);
    painter_.setPen(pen);
    painter_.drawLine(part);
  }

  // A pixel wide at every zoom; a logical one where the screen's own are finer.
  QPen PenOf(const MapLine& line) const {
    QPen pen(line.Color, ratio_);
    pen.setCosmetic(true);
    switch (line.Style) {
      case LineStyle::Solid:
        break;
      case LineStyle::Dashed:
        pen.setStyle(Qt::DashLine);
        break;
      case LineStyle::Dotted:
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern({1.5, 1.5});
        break;
    }
    return pen;
  }

  QPainter& painter_;
  bool onPaper_;
  double ratio_;
  bool smooth_;
};

}  // namespace

MapLine::MapLine(const Control& control)
    : Place(Pixels(control.Ends.X1), Pixels(control.Ends.Y1), Pixels(control.Ends.X2),
            Pixels(control.Ends.Y2)),
      Kind(control.Line),
      Style(control.Style),
      Color(ToQColor(control.BorderColor)) {}

LinesItem::LinesItem(std::span<const Control> lines, const ItemView& view, QGraphicsItem* parent)
    : ControlItem(lines.front(), parent),
      seen_(view.Open.adjusted(-kLineMargin, -kLineMargin, kLineMargin, kLineMargin)),
      onPaper_(view.OnPaper) {
  setPos(0, 0);
  setAcceptedMouseButtons(Qt::NoButton);
  setFlag(ItemUsesExtendedStyleOption);
  for (const Control& control : lines) {
    const MapLine line(control);
    if (StretchWithin(line.Place, seen_).Empty()) continue;
    box_ |= line.Box();
    lines_.push_back(line);
  }
}

void LinesItem::SpareLetters(const std::vector<QRectF>& letters) {
  if (onPaper_) return;
  for (MapLine& line : lines_) {
    const std::vector<Stretch> before = std::exchange(line.Pale, {});
    const QRectF box = line.Box();
    for (const QRectF& place : letters) {
      if (!box.intersects(place)) continue;
      const Stretch within = StretchWithin(line.Place, place);
      if (!within.Empty()) line.Pale.push_back(within);
    }
    std::sort(line.Pale.begin(), line.Pale.end(),
              [](const Stretch& a, const Stretch& b) { return a.From < b.From; });
    // Each stretch begins its dashes anew, and rounds its ends: all of the line looks different.
    if (line.Pale != before) Mark(line);
  }
}

void LinesItem::Mark(const MapLine& line) const {
  if (IsStill()) Still()->Changes.AddLine(line.Place, seen_);
}

void LinesItem::MarkChanged() const {
  for (const MapLine& line : lines_) Mark(line);
}

// Where the painter paints no more than a part of an image, its clip gets the bounds of the image:
// they say where dashes begin. Returns that part.
std::optional<QRegion> LinesItem::WidenClip(QPainter& painter) {
  const QPaintEngine& engine = *painter.paintEngine();
  if (!painter.hasClipping() || engine.type() != QPaintEngine::Raster) return std::nullopt;
  QRegion part = painter.clipRegion();
  const QTransform world = painter.worldTransform();
  const QRect device(0, 0, engine.paintDevice()->width(), engine.paintDevice()->height());
  painter.setWorldTransform(painter.deviceTransform().inverted() * world);
  painter.setClipRegion(painter.clipRegion() + OutermostPixels(device));
  painter.setWorldTransform(world);
  return part;
}

void LinesItem::Draw(QPainter& painter, const QStyleOptionGraphicsItem& option, QWidget*) {
  painter.save();
  const std::optional<QRegion> part = WidenClip(painter);
  PaintInHalves(painter, [&](QPainter& half) {
    const LinePainter lines(half, onPaper_);
    const QRegion open =
        half.hasClipping() ? half.clipRegion() : QRegion(option.exposedRect.toAlignedRect());
    const QRegion& seen = part ? *part : open;
    for (const MapLine& line : lines_) {
      if (seen.intersects(line.Box().toAlignedRect())) lines.Draw(line);
    }
  });
  painter.restore();
}

}  // namespace orrerix
