// SPDX-License-Identifier: MIT
#include "forms/layers/layer_labels.h"

#include <QFontMetricsF>

#include <gtest/gtest.h>

#include "picture/form_font.h"

namespace orrerix {
namespace {

// A map of 1366 by 768: 18 by 19 cells of 36 pixels beside the panel.
LayerView WholeGrid(Space space) {
  LayerView view;
  view.Shown = std::make_shared<const Space>(std::move(space));
  view.Layers = LayerChoice::None();
  view.Layers.Set(Layer::SystemNames, true);
  view.Cells = CellGeometry({0, 0, 1366.0 * 15, 36.0 * 19 * 15}, {});
  view.Open = QRectF(0, 0, 18 * 36, 19 * 36);
  return view;
}

TEST(LayerLabels, NamesOfSystemsNeverRunTogetherAndNoneIsLeftOut) {
  Space space;
  for (int y = 3; y < 16; ++y) {
    for (int x = y % 3; x <= MapMaxX; x += 3) {
      space.Systems.push_back({"s", "Omicron Gamma", {x, y}, 200000, std::nullopt});
    }
  }
  const std::size_t systems = space.Systems.size();

  const auto names = PlaceNames(WholeGrid(std::move(space)), FormFont(kLabelPoints));

  EXPECT_EQ(names.size(), systems);
  for (std::size_t i = 0; i < names.size(); ++i) {
    EXPECT_GE(names[i].Box.width(), QFontMetricsF(FormFont(8)).horizontalAdvance("Omicron Gamma"));
    for (std::size_t k = 0; k < i; ++k) EXPECT_FALSE(names[i].Box.intersects(names[k].Box));
  }
}

TEST(LayerLabels, ANameAtTheEdgeKeepsClearOfThePaintedBorder) {
  Space space;
  space.Systems = {{"s", "Omicron Major", {MapMaxX, MapMaxY}, 200000, std::nullopt}};

  const auto names = PlaceNames(WholeGrid(std::move(space)), FormFont(kLabelPoints));

  ASSERT_EQ(names.size(), 1u);
  // 8 pixels off the right and the lower edge of the cells.
  EXPECT_LE(names[0].Box.right(), 18 * 36 - 8);
  EXPECT_LE(names[0].Box.bottom(), 19 * 36 - 8);
}

TEST(LayerLabels, OfOneSystemAreShownWhereItFillsTheMap) {
  Space space;
  space.Bodies = {{"a", "Planet Rho", BodyKind::Planet, {8, 10}, {0.5, 0.5}, 0.01}};
  LayerView view = WholeGrid(std::move(space));
  view.Layers.Set(Layer::Bodies, true);

  EXPECT_TRUE(PlaceNames(view, FormFont(8)).empty());
  view.Visible = {8, 10, 8, 10};
  view.Cells = CellGeometry({0, 0, 600.0 * 15, 600.0 * 15}, view.Visible);
  view.Open = QRectF(0, 0, 600, 600);
  const auto names = PlaceNames(view, FormFont(8));

  ASSERT_EQ(names.size(), 1u);
  // Beside the disc of 6 pixels, 2 pixels off.
  EXPECT_DOUBLE_EQ(names[0].Box.left(), 308);
}

TEST(LayerLabels, OfTheSameNameStandOnceInAPlace) {
  Space space;
  for (const double x : {0.5, 0.51, 0.9}) {
    space.Spots.push_back({"p", "Platform", SpotKind::Platform, "", {}, {8, 10}, {x, 0.5}});
  }
  LayerView view = WholeGrid(std::move(space));
  view.Layers.Set(Layer::Platforms, true);
  view.Visible = {8, 10, 8, 10};
  view.Cells = CellGeometry({0, 0, 600.0 * 15, 600.0 * 15}, view.Visible);
  view.Open = QRectF(0, 0, 600, 600);

  EXPECT_EQ(PlaceNames(view, FormFont(8)).size(), 2u);
}

TEST(LayerLabels, TheScaleBarStandsInTheLowerCorner) {
  Space space;
  space.Systems = {{"s", "New York", {8, 10}, 200000, std::nullopt}};
  LayerView view = WholeGrid(std::move(space));
  view.Visible = {8, 10, 8, 10};
  view.Cells = CellGeometry({0, 0, 600.0 * 15, 600.0 * 15}, view.Visible);
  view.Open = QRectF(0, 0, 600, 600);

  EXPECT_TRUE(ScaleBarPlace(view).isEmpty());
  view.Layers.Set(Layer::Sectors, true);

  // 20 km of 200 are a tenth of 600 pixels, with 4 pixels at each side.
  EXPECT_DOUBLE_EQ(ScaleBarPlace(view).width(), 68);
  EXPECT_TRUE(view.Area().contains(ScaleBarPlace(view)));
}

}  // namespace
}  // namespace orrerix
