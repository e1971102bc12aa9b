// SPDX-License-Identifier: MIT
#include "forms/layers/layer_areas.h"

#include <QPainterPath>
#include <algorithm>

#include "forms/layers/layer_style.h"
#include "forms/layers/layer_symbols.h"
#include "space/pick.h"
#include "space/sectors.h"

namespace orrerix {
namespace {

constexpr double kSmallestZone = 3;  // pixels, of one that is drawn
// Where systems are smaller than this (pixels) there is no room for patterns, and too much to draw.
constexpr double kSmallSystem = 220;
constexpr std::size_t kSmallStep = 4;  // each such point of an outline is drawn there
constexpr std::size_t kManyPoints = 16;
constexpr double kGateRing = 9;  // radius, pixels
constexpr double kTerritoryEdge = 6;

class AreaPainter {
 public:
  AreaPainter(QPainter& painter, const LayerView& view, const QRectF& exposed)
      : painter_(painter), view_(view), exposed_(exposed) {}

  void Paint() {
    if (Has(Layer::Territories)) PaintTerritories();
    for (const Zone& zone : view_.Shown->Zones) PaintZone(zone);
    if (Has(Layer::Sectors) && view_.IsOneSystem()) PaintSectors();
    if (Has(Layer::Bodies)) PaintBodies();
    if (Has(Layer::Gates)) PaintGates();
    if (view_.IsOneSystem()) PaintSpots();
  }

 private:
  bool Has(Layer layer) const { return view_.Layers.Has(layer); }
  // Beyond the edge of its system, where another one is shown.
  bool IsAstray(CellFraction place) const {
    return !view_.IsOneSystem() && (place.X < 0 || place.X > 1 || place.Y < 0 || place.Y > 1);
  }
  bool IsSmall() const { return view_.CellSize() < kSmallSystem; }
  bool IsSeen(const QRectF& box) const { return box.intersects(exposed_); }

  // One system alone has an edge: an area would only dim it.
  void PaintTerritories() {
    for (const SystemArea& system : view_.Shown->Systems) {
      if (!system.Faction || !view_.Shows(system.Cell)) continue;
      const AreaStyle style = TerritoryStyle(*system.Faction, view_.OnPaper);
      QRectF box = view_.BoxOf(system.Cell);
      painter_.setPen(style.Outline);
      painter_.setBrush(style.Fill);
      if (view_.IsOneSystem()) {
        painter_.setPen(QPen(style.Outline.color(), kTerritoryEdge));
        painter_.setBrush(Qt::NoBrush);
        box.adjust(kTerritoryEdge / 2, kTerritoryEdge / 2, -kTerritoryEdge / 2,
                   -kTerritoryEdge / 2);
      }
      painter_.drawRect(box);
    }
  }

  QPainterPath PathOf(const Zone& zone) const {
    QPainterPath path;
    for (const Outline& outline : zone.Outlines) {
      QPolygonF polygon;
      const std::size_t step = IsSmall() && outline.size() > kManyPoints ? kSmallStep : 1;
      polygon.reserve(static_cast<qsizetype>(outline.size() / step) + 1);
      for (std::size_t i = 0; i < outline.size(); i += step) {
        polygon << view_.PointOf(zone.Cell, outline[i]);
      }
      path.addPolygon(polygon);
      path.closeSubpath();
    }
    return path;
  }

  // A zone ends at the edge of its system, where the next one begins.
  void PaintZone(const Zone& zone) {
    if (!view_.Shows(zone.Cell)) return;
    const auto kind = ShownKind(zone, zones_);
    if (!kind) return;
    if (zone.MiddleLine && (*kind == ZoneKind::Patrol || *kind == ZoneKind::Trade)) {
      return PaintPath(zone, *kind);
    }
    const QPainterPath path = PathOf(zone);
    const QRectF box = path.boundingRect();
    if (std::max(box.width(), box.height()) < kSmallestZone || !IsSeen(box)) return;
    const AreaStyle style = StyleOf(*kind, view_.OnPaper);
    const QRectF cell = view_.BoxOf(zone.Cell);
    const bool leaves = !cell.contains(box);
    if (leaves) {
      painter_.save();
      painter_.setClipRect(cell, Qt::IntersectClip);
    }
    painter_.setPen(IsSmall() ? QPen(style.Outline.color(), 0) : style.Outline);
    painter_.setBrush(IsSmall() ? Qt::NoBrush : style.Fill);
    painter_.setRenderHint(QPainter::Antialiasing, !IsSmall());
    painter_.drawPath(path);
    painter_.setRenderHint(QPainter::Antialiasing);
    if (leaves) painter_.restore();
  }

  // Paths are long, and many cross each other: their middle lines are enough.
  void PaintPath(const Zone& zone, ZoneKind kind) {
    const QLineF line(view_.PointOf(zone.Cell, zone.MiddleLine->first),
                      view_.PointOf(zone.Cell, zone.MiddleLine->second));
    QPen pen = StyleOf(kind, view_.OnPaper).Outline;
    if (IsSmall()) pen = QPen(pen.color(), 0);
    painter_.setPen(pen);
    painter_.setRenderHint(QPainter::Antialiasing, !IsSmall());
    painter_.drawLine(line);
    painter_.setRenderHint(QPainter::Antialiasing);
  }

  void PaintSectors() {
    const MapCell cell{view_.Visible.X1, view_.Visible.Y1};
    painter_.setPen(QPen(InkOf(Layer::Sectors, view_.OnPaper), 1, Qt::DotLine));
    for (int i = 0; i <= kSectors; ++i) {
      const double x = std::min(SectorLeft(i), 1.0);
      const double y = std::min(SectorTop(i), 1.0);
      const double right = std::min(SectorLeft(kSectors), 1.0);
      const double bottom = std::min(SectorTop(kSectors), 1.0);
      painter_.drawLine(view_.PointOf(cell, {x, SectorTop(0)}), view_.PointOf(cell, {x, bottom}));
      painter_.drawLine(view_.PointOf(cell, {SectorLeft(0), y}), view_.PointOf(cell, {right, y}));
    }
  }

  void PaintBodies() {
    const double smallest = view_.IsOneSystem() ? 2 : 0.8;
    for (const Body& body : view_.Shown->Bodies) {
      if (!view_.Shows(body.Cell) || IsAstray(body.Place)) continue;
      const QPointF middle = view_.PointOf(body.Cell, body.Place);
      const double radius = std::max(body.Radius * view_.CellSize(), smallest);
      if (!IsSeen(QRectF(middle, QSizeF(0, 0))
                      .adjusted(-2 * radius, -2 * radius, 2 * radius, 2 * radius))) {
        continue;
      }
      if (body.Kind == BodyKind::Sun) {
        DrawSun(painter_, middle, radius, view_.OnPaper);
      } else {
        DrawPlanet(painter_, middle, radius, view_.OnPaper);
      }
    }
  }

  QColor ColorOf(const Gate& gate) const {
    const auto& factions = view_.Shown->Factions;
    const auto owner = std::find(factions.begin(), factions.end(), gate.Owner);
    if (gate.Owner.empty() || owner == factions.end()) return InkOf(Layer::Gates, view_.OnPaper);
    return TerritoryStyle(static_cast<std::size_t>(owner - factions.begin()), view_.OnPaper)
        .Outline.color();
  }

  void PaintGates() {
    const double radius = std::clamp(view_.CellSize() / 20, 2.5, kGateRing + 2);
    for (const Gate& gate : view_.Shown->Gates) {
      if (!view_.Shows(gate.Cell)) continue;
      const QPointF middle = view_.PointOf(gate.Cell, gate.Place);
      DrawGate(painter_, middle, radius, ColorOf(gate), gate.IsHole);
    }
  }

  void PaintSpots() {
    for (const Spot& spot : view_.Shown->Spots) {
      if (!view_.Shows(spot.Cell) || !IsShown(spot, view_.Layers)) continue;
      const QPointF middle = view_.PointOf(spot.Cell, spot.Place);
      if (spot.Kind == SpotKind::Wreck) {
        DrawWreck(painter_, middle, InkOf(Layer::Wrecks, view_.OnPaper));
      } else if (spot.Kind == SpotKind::Platform) {
        DrawPlatform(painter_, middle, InkOf(Layer::Platforms, view_.OnPaper));
      }
    }
  }

  QPainter& painter_;
  const LayerView& view_;
  QRectF exposed_;
  ZoneKinds zones_ = view_.Layers.Zones();
};

}  // namespace

void PaintAreas(QPainter& painter, const LayerView& view, const QRectF& exposed) {
  if (view.IsEmpty()) return;
  AreaPainter(painter, view, exposed).Paint();
}

}  // namespace orrerix
