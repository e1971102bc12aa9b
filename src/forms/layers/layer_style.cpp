// SPDX-License-Identifier: MIT
#include "forms/layers/layer_style.h"

#include <QPainter>
#include <QPixmap>
#include <array>

#include "forms/layers/layer_symbols.h"

namespace orrerix {
namespace {

constexpr QSize kLegendSize{34, 20};
constexpr QRgb kSky = 0xFF10152C;

struct KindStyle {
  QRgb Sky;
  QRgb Paper;
  Qt::PenStyle Line;
  Qt::BrushStyle Pattern;
  int Alpha;  // of the area, on a sky
};

// In the order of ZoneKind.
constexpr std::array<KindStyle, kZoneKinds> kZoneStyles = {{
    {0xFFFF7A5C, 0xFFB02000, Qt::SolidLine, Qt::FDiagPattern, 90},
    {0xFFFFD75E, 0xFF8A6A00, Qt::DashDotLine, Qt::Dense7Pattern, 120},
    {0xFFD2A679, 0xFF7A5230, Qt::SolidLine, Qt::SolidPattern, 34},
    {0xFFB79CFF, 0xFF5B3FB0, Qt::DashLine, Qt::SolidPattern, 40},
    {0xFF6FC8FF, 0xFF10639A, Qt::DotLine, Qt::NoBrush, 0},
    {0xFF7BE0A0, 0xFF1B7A3E, Qt::DashLine, Qt::NoBrush, 0},
}};

constexpr std::array<Qt::BrushStyle, 3> kHatches = {Qt::SolidPattern, Qt::BDiagPattern,
                                                    Qt::DiagCrossPattern};

QColor FactionColor(std::size_t faction, bool onPaper) {
  // The golden angle: hues next to each other in the list are far apart on the circle.
  const int hue = static_cast<int>(faction * 137 + 210) % 360;
  return onPaper ? QColor::fromHsv(hue, 200, 150) : QColor::fromHsv(hue, 150, 255);
}

QPixmap Ground() {
  QPixmap picture(kLegendSize);
  picture.fill(QColor(kSky));
  return picture;
}

QIcon LegendOfArea(const AreaStyle& style) {
  QPixmap picture = Ground();
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(style.Outline);
  painter.setBrush(style.Fill);
  painter.drawEllipse(QRectF(QPointF(0, 0), kLegendSize).adjusted(3, 3, -3, -3));
  return QIcon(picture);
}

std::optional<ZoneKind> KindOf(Layer layer) {
  for (std::size_t i = 0; i < kZoneKinds; ++i) {
    if (LayerOf(static_cast<ZoneKind>(i)) == layer) return static_cast<ZoneKind>(i);
  }
  return std::nullopt;
}

}  // namespace

AreaStyle StyleOf(ZoneKind kind, bool onPaper) {
  const KindStyle& style = kZoneStyles[static_cast<std::size_t>(kind)];
  const QColor color = QColor::fromRgba(onPaper ? style.Paper : style.Sky);
  QPen pen(color, 1.2, style.Line);
  pen.setJoinStyle(Qt::RoundJoin);
  QColor ground = color;
  ground.setAlpha(style.Alpha);
  return {pen, QBrush(ground, style.Pattern)};
}

AreaStyle TerritoryStyle(std::size_t faction, bool onPaper) {
  QColor color = FactionColor(faction, onPaper);
  const Qt::BrushStyle hatch = kHatches[faction % kHatches.size()];
  color.setAlpha(hatch == Qt::SolidPattern ? 60 : 120);
  return {QPen(FactionColor(faction, onPaper), 1.5), QBrush(color, hatch)};
}

QColor InkOf(Layer layer, bool onPaper) {
  if (const auto kind = KindOf(layer)) return StyleOf(*kind, onPaper).Outline.color();
  switch (layer) {
    case Layer::Bodies:
      return onPaper ? QColor(0xFF604000) : QColor(0xFFFFE9B0);
    case Layer::Gates:
      return onPaper ? QColor(0xFF204080) : QColor(0xFFB8D4FF);
    case Layer::Wrecks:
      return onPaper ? QColor(0xFF7A4A00) : QColor(0xFFFFC98A);
    case Layer::Platforms:
      return onPaper ? QColor(0xFF902020) : QColor(0xFFFF9A9A);
    case Layer::Sectors:
      return onPaper ? QColor(0xFF808080) : QColor(0xFF8FA4C8);
    default:
      return onPaper ? QColor(0xFF101010) : QColor(0xFFF2F6FF);
  }
}

QIcon LegendOf(Layer layer) {
  if (const auto kind = KindOf(layer)) return LegendOfArea(StyleOf(*kind, false));
  if (layer == Layer::Territories) return LegendOfArea(TerritoryStyle(1, false));
  QPixmap picture = Ground();
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  DrawLegendSymbol(painter, layer, QRectF(QPointF(0, 0), kLegendSize));
  return QIcon(picture);
}

QIcon LegendOfFaction(std::size_t faction) {
  QPixmap picture = Ground();
  QPainter painter(&picture);
  const AreaStyle style = TerritoryStyle(faction, false);
  painter.setPen(style.Outline);
  painter.setBrush(style.Fill);
  painter.drawRect(QRectF(QPointF(0, 0), kLegendSize).adjusted(2.5, 2.5, -2.5, -2.5));
  return QIcon(picture);
}

}  // namespace orrerix
