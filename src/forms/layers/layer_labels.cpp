// SPDX-License-Identifier: MIT
#include "forms/layers/layer_labels.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QMarginsF>
#include <array>
#include <cmath>

#include "forms/layers/layer_style.h"
#include "space/labels.h"
#include "space/sectors.h"

namespace orrerix {
namespace {

constexpr double kLabelMargin = 2;     // around the letters, pixels
constexpr double kIconGap = 9;         // from the middle of an icon to its name
constexpr double kLongestScale = 0.2;  // fraction of a system's square
constexpr double kScaleHeight = 26;
constexpr double kScaleInset = 14;
constexpr std::size_t kMostLoot = 2;  // items that a wreck's name ends with
constexpr double kSameNameReach = 60;
constexpr double kLeastZone = 26;  // pixels across, of a zone with its name
constexpr double kMapBorder = 8;   // what the painted border covers of the map, pixels

class NameWishes {
 public:
  NameWishes(const LayerView& view, const QFont& font) : view_(view), metrics_(font) {}

  void Collect() {
    if (Has(Layer::SystemNames) && !view_.IsOneSystem()) AddSystems();
    if (!view_.IsOneSystem()) return;
    if (Has(Layer::Bodies)) AddBodies();
    AddSpots(SpotKind::Station, Layer::ObjectNames);
    if (Has(Layer::Gates)) AddGates();
    AddSpots(SpotKind::Wreck, Layer::Wrecks);
    AddSpots(SpotKind::Platform, Layer::Platforms);
    if (Has(Layer::ZoneNames)) AddZones();
  }

  std::vector<LayerLabel> Placed() const {
    const QMarginsF border(kMapBorder, kMapBorder, kMapBorder, kMapBorder);
    const auto places =
        PlaceLabels(wishes_, BoxOf(view_.Area().marginsRemoved(border)), Obstacles());
    std::vector<LayerLabel> placed;
    for (std::size_t i = 0; i < places.size(); ++i) {
      if (!places[i]) continue;
      LayerLabel label = labels_[i];
      label.Box = QRectF(places[i]->Left, places[i]->Top, places[i]->Width, places[i]->Height);
      placed.push_back(std::move(label));
    }
    return placed;
  }

 private:
  bool Has(Layer layer) const { return view_.Layers.Has(layer); }
  static LabelBox BoxOf(const QRectF& box) {
    return {box.left(), box.top(), box.width(), box.height()};
  }

  // Platforms in a group, and a planet with its docking ring, need their name once.
  bool HasNear(const QString& text, QPointF anchor) const {
    for (std::size_t i = 0; i < labels_.size(); ++i) {
      const QPointF other(wishes_[i].X, wishes_[i].Y);
      if (labels_[i].Text == text && QLineF(anchor, other).length() < kSameNameReach) return true;
    }
    return false;
  }

  void Add(const std::string& text, QPointF anchor, double gap, Layer layer, LabelSpots spots) {
    const QString shown = QString::fromStdString(text);
    if (text.empty() || (view_.IsOneSystem() && HasNear(shown, anchor))) return;
    const double width = metrics_.horizontalAdvance(shown) + 2 * kLabelMargin;
    wishes_.push_back({anchor.x(), anchor.y(), gap, width, metrics_.height(), spots});
    labels_.push_back({shown, {}, InkOf(layer, view_.OnPaper)});
  }

  // Those in a corner of the grid have the fewest places, so rows are taken as they come.
  void AddSystems() {
    for (const SystemArea& system : view_.Shown->Systems) {
      if (!view_.Shows(system.Cell)) continue;
      Add(system.Name, view_.PointOf(system.Cell, {0.5, 0.8}), 0, Layer::SystemNames,
          LabelSpots::Around);
    }
  }

  void AddBodies() {
    for (const Body& body : view_.Shown->Bodies) {
      if (!view_.Shows(body.Cell)) continue;
      const double gap = std::max(body.Radius * view_.CellSize(), 2.0) + 2;
      Add(body.Name, view_.PointOf(body.Cell, body.Place), gap, Layer::Bodies, LabelSpots::Beside);
    }
  }

  void AddSpots(SpotKind kind, Layer layer) {
    if (!Has(layer)) return;
    for (const Spot& spot : view_.Shown->Spots) {
      if (spot.Kind != kind || !view_.Shows(spot.Cell)) continue;
      Add(TextOf(spot), view_.PointOf(spot.Cell, spot.Place), kIconGap, layer, LabelSpots::Beside);
    }
  }

  static std::string TextOf(const Spot& spot) {
    std::string text = spot.Name;
    for (std::size_t i = 0; i < std::min(spot.Loot.size(), kMostLoot); ++i) {
      text += (i == 0 ? ": " : ", ") + spot.Loot[i];
    }
    return spot.Loot.size() > kMostLoot ? text + " ..." : text;
  }

  void AddGates() {
    for (const Gate& gate : view_.Shown->Gates) {
      if (!view_.Shows(gate.Cell)) continue;
      const std::string text = gate.Owner.empty() ? gate.Name : gate.Name + " (" + gate.Owner + ")";
      Add(text, view_.PointOf(gate.Cell, gate.Place), kIconGap + 4, Layer::Gates,
          LabelSpots::Beside);
    }
  }

  void AddZones() {
    const ZoneKinds shown = view_.Layers.Zones();
    for (const Zone& zone : view_.Shown->Zones) {
      if (!view_.Shows(zone.Cell) || zone.Name.empty()) continue;
      const auto kind = ShownKind(zone, shown);
      const double size = std::sqrt(zone.Area) * view_.CellSize();
      if (!kind || size < kLeastZone) continue;
      Add(zone.Name, view_.PointOf(zone.Cell, zone.Middle), 0, LayerOf(*kind), LabelSpots::Over);
    }
  }

  // Bodies may be covered: they are large, and their own names stand beside them.
  std::vector<LabelBox> Obstacles() const {
    std::vector<LabelBox> obstacles;
    if (view_.IsOneSystem()) {
      for (const QRectF& icon : view_.Icons) obstacles.push_back(BoxOf(icon));
    }
    if (const QRectF bar = ScaleBarPlace(view_); !bar.isEmpty()) obstacles.push_back(BoxOf(bar));
    return obstacles;
  }

  const LayerView& view_;
  QFontMetricsF metrics_;
  std::vector<LabelWish> wishes_;
  std::vector<LayerLabel> labels_;
};

void DrawText(QPainter& painter, const QRectF& box, const QString& text, const QColor& ink,
              bool onPaper) {
  constexpr std::array<QPointF, 8> around = {QPointF(-1, 0), QPointF(1, 0),   QPointF(0, -1),
                                             QPointF(0, 1),  QPointF(-1, -1), QPointF(1, -1),
                                             QPointF(-1, 1), QPointF(1, 1)};
  painter.setPen(onPaper ? QColor(255, 255, 255, 190) : QColor(0, 0, 16, 170));
  for (const QPointF& offset : around) {
    painter.drawText(box.translated(offset), Qt::AlignCenter | Qt::TextDontClip, text);
  }
  painter.setPen(ink);
  painter.drawText(box, Qt::AlignCenter | Qt::TextDontClip, text);
}

const SystemArea* SystemIn(const LayerView& view) {
  for (const SystemArea& system : view.Shown->Systems) {
    if (view.Shows(system.Cell)) return &system;
  }
  return nullptr;
}

ScaleBar BarOf(const LayerView& view) {
  const SystemArea* system = SystemIn(view);
  return system == nullptr ? ScaleBar() : ScaleBarFor(system->UnitsAcross, kLongestScale);
}

bool HasSectors(const LayerView& view) {
  return !view.IsEmpty() && view.IsOneSystem() && view.Layers.Has(Layer::Sectors);
}

void PaintScaleBar(QPainter& painter, const LayerView& view) {
  const ScaleBar bar = BarOf(view);
  const QRectF box = ScaleBarPlace(view);
  if (box.isEmpty()) return;
  const QColor ink = InkOf(Layer::SystemNames, view.OnPaper);
  const QRectF line(box.left() + 4, box.bottom() - 9, box.width() - 8, 5);
  painter.setPen(Qt::NoPen);
  painter.setBrush(view.OnPaper ? QColor(255, 255, 255, 190) : QColor(0, 0, 16, 170));
  painter.drawRect(box);
  painter.setPen(QPen(ink, 1.5));
  painter.drawPolyline(
      QPolygonF({line.topLeft(), line.bottomLeft(), line.bottomRight(), line.topRight()}));
  painter.drawText(box.adjusted(0, 1, 0, -9), Qt::AlignCenter | Qt::TextDontClip,
                   QString::fromStdString(bar.Text));
}

void PaintSectorNames(QPainter& painter, const LayerView& view, const QFontMetricsF& metrics) {
  const MapCell cell{view.Visible.X1, view.Visible.Y1};
  const QSizeF size(2 * metrics.averageCharWidth(), metrics.height());
  const QColor ink = InkOf(Layer::Sectors, view.OnPaper);
  const auto at = [&](QPointF middle, const std::string& text) {
    QRectF box(QPointF(0, 0), size);
    box.moveCenter(middle);
    DrawText(painter, box, QString::fromStdString(text), ink, view.OnPaper);
  };
  for (int i = 0; i < kSectors; ++i) {
    const double x = (SectorLeft(i) + std::min(SectorLeft(i + 1), 1.0)) / 2;
    const double y = (SectorTop(i) + std::min(SectorTop(i + 1), 1.0)) / 2;
    at(view.PointOf(cell, {x, SectorTop(0)}) - QPointF(0, size.height() / 2), ColumnName(i));
    at(view.PointOf(cell, {SectorLeft(0), y}) - QPointF(size.width() / 2, 0), RowName(i));
  }
}

}  // namespace

std::vector<LayerLabel> PlaceNames(const LayerView& view, const QFont& font) {
  if (view.IsEmpty()) return {};
  NameWishes wishes(view, font);
  wishes.Collect();
  return wishes.Placed();
}

QRectF ScaleBarPlace(const LayerView& view) {
  if (!HasSectors(view)) return {};
  const double length = BarOf(view).Length * view.CellSize();
  const QRectF area = view.Area();
  if (length <= 0) return {};
  return {area.right() - kScaleInset - length - 8, area.bottom() - kScaleInset - kScaleHeight,
          length + 8, kScaleHeight};
}

void PaintNames(QPainter& painter, const LayerView& view, const std::vector<LayerLabel>& names,
                const QFont& font) {
  if (view.IsEmpty()) return;
  painter.setFont(font);
  for (const LayerLabel& name : names) {
    DrawText(painter, name.Box, name.Text, name.Ink, view.OnPaper);
  }
  if (!HasSectors(view)) return;
  PaintSectorNames(painter, view, QFontMetricsF(font));
  PaintScaleBar(painter, view);
}

}  // namespace orrerix
