// SPDX-License-Identifier: MIT
// A small map in a view.
#pragma once

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "picture/map_scene_view.h"

namespace orrerix {

inline const Control kBare;

// Stands below the lines and counts how often it is painted.
class CountingItem : public ControlItem {
 public:
  CountingItem() : ControlItem(kBare, nullptr) {}
  QRectF boundingRect() const override { return {0, 0, 50, 50}; }
  QPainterPath shape() const override { return {}; }
  void Draw(QPainter&, const QStyleOptionGraphicsItem&, QWidget*) override { ++Count; }
  void Change() { SetChanged(); }
  int Count = 0;
};

// A map of 300 by 200 pixels with a panel of 80 at its right.
class MapSceneViewTest : public ::testing::Test {
 protected:
  MapSceneViewTest() {
    drawing.Frame = {0, 0, 4500, 3000};
    drawing.FrameColor = {0x402010};
    drawing.Panel = PanelPlace::Right;
    drawing.PanelBox = {3300, 0, 1200, 3000};
    view.setScene(&scene);
    view.resize(300, 200);
  }

  static Control Name(int index, double top, std::string caption) {
    Control name =
        MakeLabel(ControlId::SystemLabel, index, {0, top, 3300, 300}, std::move(caption));
    name.FontSize = 12;
    name.ForeColor = Color{0xFFFFFF};
    return name;
  }

  static Control Line(int index, LineEnds ends, LineKind kind) {
    const LineStyle style = kind == LineKind::JumpHole ? LineStyle::Dotted : LineStyle::Solid;
    Control line = MakeLine(ControlId::MapLine, index, kind, {0x8080FF}, style);
    line.Ends = ends;
    return line;
  }

  // Names, lines that leave the frame, lanes if they are wanted, an icon's place, the panel.
  void Show(bool lanes, const std::string& caption = "New York") {
    drawing.Controls = {Name(1, 300, caption), Name(2, 1500, "Manhattan")};
    drawing.Controls.push_back(Line(1, {-900, 100, 4000, 2950}, LineKind::JumpGate));
    drawing.Controls.push_back(Line(2, {200, -500, 3900, 3700}, LineKind::JumpHole));
    if (lanes) drawing.Controls.push_back(Line(3, {300, 2200, 3000, 400}, LineKind::TradeLane));
    drawing.Controls.push_back(
        MakeFrame(ControlId::PanelFrame, 0, drawing.PanelBox, {0x00FF00u - lanes}));
    scene.Show(drawing);
    if (putsBelow) scene.Put(below, Stratum::BelowLines);
  }

  static QImage Painted(QGraphicsView& shown, double ratio = 1, QPoint place = {}) {
    QImage image(QSize(300 + place.x(), 200 + place.y()) * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::magenta);
    shown.viewport()->render(&image, place);
    return image;
  }

  // The same scene, every item painted anew.
  QImage PaintedAnew(double ratio = 1, QPoint place = {}) {
    QGraphicsView plain(&scene);
    plain.setFrameShape(QFrame::NoFrame);
    plain.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    plain.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    plain.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    plain.setRenderHint(QPainter::Antialiasing);
    plain.resize(300, 200);
    return Painted(plain, ratio, place);
  }

  PictureStore pictures;
  MapScene scene{pictures};
  CountingItem below;  // which takes itself out of the scene
  MapDrawing drawing;
  MapSceneView view;
  bool putsBelow = false;
};

}  // namespace orrerix
