// SPDX-License-Identifier: MIT
#include "cli/scene.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "cli/scene_json.h"

namespace orrerix {
namespace {

TEST(SceneWords, ASizeIsTwoWholeNumbers) {
  const Extent extent = ParseExtent("24000x18000");

  EXPECT_EQ(extent.Width, 24000);
  EXPECT_EQ(extent.Height, 18000);
}

TEST(SceneWords, AnythingElseIsWrongUsage) {
  for (const char* text :
       {"", "24000", "24000x", "x18000", "axb", "1x2x3", "-1x5", "1,2", "1x2 "}) {
    EXPECT_THROW(ParseExtent(text), WrongUsage) << text;
  }
}

// The gestures of a verb that was given these arguments.
std::vector<Gesture> GesturesOf(std::vector<std::string> words) {
  CLI::App verb;
  SceneOptions scene;
  AddMouseOptions(verb, scene);
  std::reverse(words.begin(), words.end());  // the parser takes them from the back
  verb.parse(std::move(words));
  ReadGestures(verb, scene);
  return std::move(scene.Gestures);
}

TEST(SceneWords, GesturesKeepTheOrderOfTheWords) {
  const std::vector<Gesture> gestures =
      GesturesOf({"--back", "--drag", "1,2,3,4", "--back", "--drag=-5,6,7,8", "--back"});

  ASSERT_EQ(gestures.size(), 5u);
  EXPECT_TRUE(std::holds_alternative<Back>(gestures[0]));
  EXPECT_EQ(std::get<Drag>(gestures[1]).Y2, 4);
  EXPECT_TRUE(std::holds_alternative<Back>(gestures[2]));
  EXPECT_EQ(std::get<Drag>(gestures[3]).X1, -5);
  EXPECT_TRUE(std::holds_alternative<Back>(gestures[4]));
}

TEST(SceneWords, ADragHasTwoPlaces) {
  EXPECT_THROW(GesturesOf({"--drag", "1,2,3"}), WrongUsage);
  EXPECT_THROW(GesturesOf({"--drag", "1,2,3,4,5"}), WrongUsage);
}

TEST(SceneJson, WholeNumbersAreWrittenAsSuchAndOthersInFull) {
  Control icon = MakePicture(ControlId::MapIcon, 3, {1.5, 2, 40, 40}, "Jumpgate");
  icon.Subject = DockableObject{"li01_to_li02"};

  EXPECT_EQ(ControlJson(icon).dump(),
            "{\"control\":\"Image1\",\"index\":3,\"Left\":1.5,\"Top\":2,\"Width\":40,"
            "\"Height\":40,\"Picture\":\"Jumpgate\",\"Tag\":\"li01_to_li02\"}");
}

TEST(SceneJson, AControlThatIsNoArrayHasTheIndexNull) {
  const Control universe = MakePicture(ControlId::PaintedUniverse, std::nullopt, {});

  EXPECT_TRUE(ControlJson(universe)["index"].is_null());
}

TEST(SceneJson, ALineTellsItsEndsAndItsStyle) {
  Control line = MakeLine(ControlId::MapLine, 1, LineKind::JumpHole, {0x808080}, LineStyle::Dotted);
  line.Ends = {0.1F, 2, 3, 4};
  line.Subject = ConnectedPlaces{"Lantern", "Ember"};

  const nlohmann::ordered_json json = ControlJson(line);

  EXPECT_EQ(json["X1"], static_cast<double>(0.1F));
  EXPECT_EQ(json["Y2"], 4);
  EXPECT_EQ(json["BorderStyle"], 3);
  EXPECT_EQ(json["BorderColor"], "0x808080");
  EXPECT_EQ(json["Tag"], "Lantern <-> Ember");
  EXPECT_FALSE(json.contains("Left"));
}

TEST(SceneJson, ALineWhosePlacesAreUnknownHasAnEmptyTag) {
  const Control line = MakeLine(ControlId::MapLine, 1, LineKind::JumpGate, {});

  EXPECT_EQ(ControlJson(line)["Tag"], "");
}

TEST(SceneJson, TheTagOfAHoverBoxIsItsIconsIndexAndWidth) {
  Control shape = MakeFrame(ControlId::BoxShape, std::nullopt, {}, {});
  EXPECT_FALSE(ControlJson(shape).contains("Tag"));

  shape.Subject = HoveredIcon{12, 200.0F / 3};

  EXPECT_EQ(ControlJson(shape)["Tag"], "12,66.6666641235352");  // the 32-bit float next to 200 / 3
}

TEST(SceneJson, TheTagOfASystemPictureIsItsPlaceInTheGamesCount) {
  EXPECT_EQ(ControlJson(MakePicture(ControlId::SystemPicture, 0, {}))["Tag"], "7, 4");
}

TEST(SceneJson, APriceTableIsItsHeadAndThreeLabelsARow) {
  PriceTable table;
  table.Group = 2;
  table.Head = {"Prices", {0, 0, 900, 100}, 9, {0x00FFFF}, {0x400000}};
  table.Rows = {{1,
                 "commodity_gold",
                 false,
                 {"Gold", {}, 8, {}, {}},
                 {"50", {}, 8, {}, {}},
                 {"10", {}, 8, {}, {}}}};

  const nlohmann::ordered_json json = PriceTableJson(table);

  ASSERT_EQ(json.size(), 4u);
  EXPECT_EQ(json[0].dump(),
            "{\"control\":\"PricesHead\",\"index\":2,\"Left\":0,\"Top\":0,\"Width\":900,"
            "\"Height\":100,\"Caption\":\"Prices\",\"FontSize\":9,\"ForeColor\":\"0x00FFFF\","
            "\"BackColor\":\"0x400000\"}");
  EXPECT_EQ(json[1]["control"], "PricesField0");
  EXPECT_EQ(json[1]["Tag"], "commodity_gold");
  EXPECT_EQ(json[2]["control"], "PricesField1");
  EXPECT_EQ(json[3]["Caption"], "10");
  EXPECT_EQ(json[3]["index"], 1);
}

}  // namespace
}  // namespace orrerix
