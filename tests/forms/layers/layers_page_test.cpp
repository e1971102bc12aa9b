// SPDX-License-Identifier: MIT
#include "forms/workbench/layers_page.h"

#include "forms/layers/layers_fixture.h"

namespace orrerix {
namespace {

using LayersPageTest = LayersFixture;

TEST_F(LayersPageTest, ASwitchShowsItsLayer) {
  MapSpace space(map, remembered, choice);
  LayersPage page(space, choice);
  EXPECT_TRUE(Find<QCheckBox>(page, "Layer_bodies").isChecked());
  EXPECT_FALSE(Find<QCheckBox>(page, "Layer_danger").isChecked());

  Find<QCheckBox>(page, "Layer_danger").click();

  EXPECT_TRUE(space.Choice().Has(Layer::Danger));
  EXPECT_TRUE(space.Choice().Has(Layer::Bodies));
}

TEST_F(LayersPageTest, AllCanBeSwitchedOffAtOnce) {
  MapSpace space(map, remembered, choice);
  LayersPage page(space, choice);

  Find<QPushButton>(page, "LayersOff").click();

  EXPECT_TRUE(space.Choice().Empty());
  EXPECT_FALSE(Find<QCheckBox>(page, "Layer_bodies").isChecked());
}

TEST_F(LayersPageTest, EachLayerHasASwitchWithALegend) {
  MapSpace space(map, remembered, choice);
  const LayersPage page(space, choice);

  const auto boxes = page.findChildren<QCheckBox*>();

  EXPECT_EQ(static_cast<std::size_t>(boxes.size()), kLayers);
  for (const QCheckBox* box : boxes)
    EXPECT_FALSE(box->icon().isNull()) << box->objectName().toStdString();
}

TEST_F(LayersPageTest, SaysWhatThereIs) {
  AddTo("Groups", {{"NickName", "navy"}, {"Name", "The Navy"}});
  AddTo("Objects", {{"nickname", "base"},
                    {"realname", "Fort"},
                    {"dock_with", "base"},
                    {"reputation", "navy"},
                    {"sys_nick", "Li01"},
                    {"pos", "1, 2, 3"}});
  MapSpace space(map, remembered, choice);
  LayersPage page(space, choice);
  Read(space);

  page.ShowContent();

  EXPECT_EQ(Find<QLabel>(page, "LayersSums").text(),
            "0 zones, 1 suns and planets, 2 gates and holes, 0 wrecks and platforms");
  EXPECT_EQ(Find<QListWidget>(page, "LayersFactions").item(0)->text(), "The Navy (1)");
}

}  // namespace
}  // namespace orrerix
