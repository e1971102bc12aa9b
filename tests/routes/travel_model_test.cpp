// SPDX-License-Identifier: MIT
#include "routes/travel_model.h"

#include <gtest/gtest.h>

#include "routes/travel_fixture.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

TEST(Milliseconds, AreRoundedUpAndNeverBelowZero) {
  EXPECT_EQ(Milliseconds(1.0001), 1001);
  EXPECT_EQ(Milliseconds(2.0), 2000);
  EXPECT_EQ(Milliseconds(0), 0);
}

TEST(Milliseconds, IgnoreTheNoiseOfSums) {
  EXPECT_EQ(Milliseconds(0.1 + 0.2), 300);  // 0.30000000000000004
  EXPECT_EQ(Milliseconds(0.3000000011), 301);
}

TEST(FlyTime, IsThatOfTheFasterEngine) {
  const TravelModel model;

  EXPECT_EQ(FlyTime(model, 80), 1000);     // 80 / 80; with cruise 5 + 0.267
  EXPECT_EQ(FlyTime(model, 3000), 15000);  // 5 + 3000 / 300; with impulse 37.5
}

TEST(LaneTime, AddsTheRideToEnteringAndLeaving) {
  EXPECT_EQ(LaneTime(TravelModel{}, 4500), 12000);  // 10 + 4500 / 2250
}

class ModelOfUniverse : public TravelFixture {
 protected:
  void Table(const char* name, std::initializer_list<const char*> fields) {
    TableDef table = GenericTable(name);
    for (const char* field : fields) {
      table.Fields.push_back({field, FieldType::Memo, 0, true, false});
    }
    db.CreateTable(mustWork, table);
  }
};

TEST_F(ModelOfUniverse, LaneSecondsComeFromTheFirstRowOfTheLanes) {
  EXPECT_DOUBLE_EQ(LaneSecondsOf(mustWork, db), 10);

  Table("tradelane", {"secs_before_enter", "secs_before_splash", "secs_before_exit"});
  Add("tradelane", {{"secs_before_enter", "4"}, {"secs_before_exit", "1.5"}});
  Add("tradelane", {{"secs_before_enter", "9"}});

  EXPECT_DOUBLE_EQ(LaneSecondsOf(mustWork, db), 7.5 + 4 + 0.2 + 1.5);
}

TEST_F(ModelOfUniverse, AShipTravelsWithTheEngineOfItsPackage) {
  Table("engine", {"nickname", "cruise_speed", "max_force", "linear_drag", "cruise_charge_time"});
  Add("engine", {{"nickname", "big_engine"},
                 {"cruise_speed", "400"},
                 {"max_force", "60000"},
                 {"linear_drag", "500"},
                 {"cruise_charge_time", "3"}});
  Add("Ships", {{"NickName", "Arrow"},
                {"packagename", "arrow_package"},
                {"linear_drag", 100.0},
                {"hold_size", 70}});
  Add("Packages", {{"PackageName", "arrow_package"}, {"NickName", "some_light"}});
  Add("Packages", {{"PackageName", "Arrow_Package"}, {"NickName", "BIG_ENGINE"}});

  const auto ship = TravelOfShip(mustWork, db, "ARROW");

  ASSERT_TRUE(ship);
  EXPECT_EQ(ship->CruiseSpeed, 400);
  EXPECT_EQ(ship->ImpulseSpeed, 100);  // 60000 / (500 + 100)
  EXPECT_EQ(ship->ChargeSeconds, 3);
  EXPECT_EQ(ship->HoldSize, 70);
}

TEST_F(ModelOfUniverse, WhatAnEngineDoesNotTellChangesNothing) {
  Table("engine", {"nickname", "cruise_speed", "max_force"});
  Add("engine", {{"nickname", "odd_engine"}, {"cruise_speed", "0"}, {"max_force", "60000"}});
  Add("Ships", {{"NickName", "arrow"}, {"packagename", "p"}});
  Add("Packages", {{"PackageName", "p"}, {"NickName", "odd_engine"}});

  const auto ship = TravelOfShip(mustWork, db, "arrow");

  ASSERT_TRUE(ship);
  EXPECT_EQ(ship->CruiseSpeed, std::nullopt);
  EXPECT_EQ(ship->ImpulseSpeed, std::nullopt);  // no drag to divide by
  EXPECT_EQ(ship->ChargeSeconds, std::nullopt);
  EXPECT_EQ(ship->HoldSize, std::nullopt);
  EXPECT_EQ(TravelOfShip(mustWork, db, "no_ship"), std::nullopt);
}

TEST(CruiseSpeedOfGame, IsTheLastPositiveOneOfTheConstantsFile) {
  TempFolder folder;
  folder.Write("EXE/freelancer.ini", "[Data]\r\nConstants = consts.ini ; here\r\n");
  folder.Write("DATA/consts.ini",
               "[EngineEquipConsts]\r\nCRUISING_SPEED = 250\r\ncruising_speed = 350 ;fast\r\n"
               "CRUISING_SPEED = 0\r\n[Others]\r\nCRUISING_SPEED = 999\r\n");

  EXPECT_EQ(CruiseSpeedOfGame(GameFolder(folder.Path().string())), 350);
}

TEST(CruiseSpeedOfGame, IsUnknownWithoutAConstantsFile) {
  TempFolder folder;
  folder.Write("EXE/freelancer.ini", "[Data]\r\nconstants = missing.ini\r\n");

  EXPECT_EQ(CruiseSpeedOfGame(GameFolder(folder.Path().string())), std::nullopt);
}

}  // namespace
}  // namespace orrerix
