// SPDX-License-Identifier: MIT
#include "check/log_places.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix::check {
namespace {

class LogPlacesTest : public ::testing::Test {
 protected:
  void Double(const std::string& key, const std::string& nickname) {
    entries.push_back(ParseLogEntry(
        "+--- Warning: DOUBLE-DATA for [" + key + "] in file [" + game.Path().string() +
        "\\data\\Gun.ini] in DataBlock:\r\n[Gun]\r\nnickname = " + nickname +
        "\r\n-- (useing last value) --\r\n"));
  }
  void Refused(const std::string& nickname) {
    entries.push_back(ParseLogEntry("#--- Error in FL-MOD-File:\r\n" + game.Path().string() +
                                    "\\data\\gun.ini\r\nCant add to Database (cause of allready "
                                    "exist):\r\n[Gun]\r\nnickname = " +
                                    nickname + "\r\n---."));
  }
  std::vector<int> Lines() const {
    std::vector<int> lines;
    for (const LogPlace& place : PlacesOfLog(game.Path(), entries)) lines.push_back(place.Line);
    return lines;
  }

  TempFolder game;
  std::vector<LogEntry> entries;
};

TEST_F(LogPlacesTest, ADoubleKeyIsFoundWhereItStandsAgain) {
  game.Write("DATA/gun.ini", "[Gun]\nnickname = laser\nmass = 1\nMASS = 2\nmass = 3\n");
  Double("mass", "laser");
  Double("mass", "laser");

  EXPECT_EQ(Lines(), (std::vector<int>{4, 5}));
  EXPECT_EQ(PlacesOfLog(game.Path(), entries)[0].File, "DATA/gun.ini");
}

TEST_F(LogPlacesTest, ARefusedSectionIsNotTheFirstOfItsName) {
  game.Write("DATA/gun.ini",
             "[Gun]\nnickname = laser\n[Gun]\nnickname = maser\n[Gun]\nnickname = Laser\n");
  Refused("Laser");

  EXPECT_EQ(Lines(), (std::vector<int>{5}));
}

TEST_F(LogPlacesTest, ASectionOfAnotherKindIsNotMeant) {
  game.Write("DATA/gun.ini", "[Gun]\nnickname = laser\n[Mine]\nnickname = laser\n");
  Refused("laser");

  EXPECT_EQ(Lines(), (std::vector<int>{1}));
}

TEST_F(LogPlacesTest, WhatIsNoLongerInTheFileHasNoLine) {
  game.Write("DATA/gun.ini", "[Gun]\nnickname = maser\n");
  Refused("laser");
  Double("mass", "maser");

  EXPECT_EQ(Lines(), (std::vector<int>{0, 0}));
}

TEST_F(LogPlacesTest, AMissingFileAndATextOfNoKindHaveNoPlace) {
  entries.push_back(ParseLogEntry("Cant find file: [" + game.Path().string() + "\\data\\a.ini]"));
  entries.push_back(ParseLogEntry("something else"));

  for (const LogPlace& place : PlacesOfLog(game.Path(), entries)) {
    EXPECT_EQ(place.File, "");
    EXPECT_EQ(place.Line, 0);
  }
}

}  // namespace
}  // namespace orrerix::check
