// SPDX-License-Identifier: MIT
#include <QPainterPath>

#include "bodies.h"
#include "logo_parts.h"
#include "nebula.h"
#include "seeds.h"
#include "stars.h"

namespace orrerix {

namespace {

Rgb SkyLight(Spot at, const Nebula& nebula) {
  const GridPoint place{at.X / 150, at.Y / 150};
  Palette palette = PaletteAt({9, 8.6});
  palette.Bright = 1.2;
  return FromScreen(0x040A1C) + nebula.Light(place, palette, {0.9, 7, 0.55}) * 1.1;
}

void DrawOrbits(QPainter& painter) {
  painter.setBrush(Qt::NoBrush);
  for (const OrreryRing& ring : OrreryRings) {
    QPainterPath orbit;
    for (int i = 0; i <= 180; ++i) {
      const Spot spot = OnRing(ring.Radius, i / 180.0);
      if (i == 0)
        orbit.moveTo(spot.X, spot.Y);
      else
        orbit.lineTo(spot.X, spot.Y);
    }
    painter.setPen(QPen(QColor(120, 200, 255, 50), 4));
    painter.drawPath(orbit);
    painter.setPen(QPen(QColor(180, 228, 255, 200), 1.1));
    painter.drawPath(orbit);
  }
}

// The orbits as light, so that sun and worlds can be painted over them.
void AddOrbits(Canvas& canvas) {
  QImage lines(canvas.Width(), canvas.Height(), QImage::Format_RGB32);
  lines.fill(Qt::black);
  QPainter painter(&lines);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(canvas.Scale(), canvas.Scale());
  DrawOrbits(painter);
  for (int y = 0; y < canvas.Height(); ++y) {
    for (int x = 0; x < canvas.Width(); ++x) {
      canvas.At(x, y) = canvas.At(x, y) + FromScreen(lines.pixel(x, y) & 0xFFFFFFU) * 0.9;
    }
  }
}

void DrawWorlds(Canvas& canvas) {
  const Spot middle{LogoWidth / 2.0, LogoHeight / 2.0};
  constexpr std::array<PlanetKind, 4> kinds{PlanetKind::Rock, PlanetKind::Ice, PlanetKind::Ocean,
                                            PlanetKind::Giant};
  for (std::size_t i = 0; i < OrreryRings.size(); ++i) {
    const OrreryRing& ring = OrreryRings[i];
    DrawPlanet(canvas, {OnRing(ring.Radius, ring.Turn), ring.World * 1.25, middle, kinds[i], false,
                        LogoSeed + i});
  }
  DrawPlanet(canvas, {{524, 44}, 17, middle, PlanetKind::Giant, true, LogoSeed + 9});
}

}  // namespace

Spot OnRing(double radius, double turn) {
  constexpr double tilt = -0.11;
  const double angle = turn * FullTurn;
  const double along = radius * std::cos(angle);
  const double across = radius * 0.25 * std::sin(angle);
  return {LogoWidth / 2.0 + along * std::cos(tilt) - across * std::sin(tilt),
          LogoHeight / 2.0 + along * std::sin(tilt) + across * std::cos(tilt)};
}

QImage PaintLogoSky(int scale) {
  Canvas canvas(LogoWidth, LogoHeight, scale);
  const Nebula nebula(LogoSeed);
  canvas.Fill([&nebula](Spot at) { return SkyLight(at, nebula); });
  SplitMix64 dice(LogoSeed);
  DrawStars(canvas, {9, 0.06, 1.8, 1.2}, dice);
  DrawBeacons(canvas, 6, 0.7, dice);
  AddOrbits(canvas);
  DrawSun(canvas, {{LogoWidth / 2.0, LogoHeight / 2.0}, SunRadius, 0.42, FromScreen(0xFFC870)});
  DrawWorlds(canvas);
  return canvas.Expose();
}

}  // namespace orrerix
