// SPDX-License-Identifier: MIT
#include "picture/picture_files.h"

#include <QFile>

#include <gtest/gtest.h>

#include "map/object_classes.h"
#include "map/system_pictures.h"

namespace orrerix {
namespace {

QString FileOf(const std::string& picture, std::optional<int> index = std::nullopt) {
  return PictureFile(MakePicture("Image1", index, {}, picture));
}

TEST(PictureFiles, ControlsThatCarryAPictureHaveItsFile) {
  EXPECT_EQ(FileOf("StarMapPic"), ":/pictures/star_map.jpg");
  EXPECT_EQ(FileOf("Hintergrund"), ":/pictures/hintergrund.png");
  EXPECT_EQ(FileOf("Blanko"), ":/pictures/blanko.jpg");
  EXPECT_EQ(FileOf("JumpHole"), ":/pictures/icons/jumphole.svg");
  EXPECT_EQ(FileOf("WaterlooStation"), ":/pictures/icons/waterloostation.svg");
}

TEST(PictureFiles, SystemPicturesGoByTheirIndex) {
  EXPECT_EQ(FileOf("SysMapGfx", 7), ":/pictures/systems/07.jpg");
  EXPECT_EQ(FileOf("SysMapGfx", 46), ":/pictures/systems/46.jpg");
}

TEST(PictureFiles, FileNamesAreFilesBelowTheBuiltInPictures) {
  EXPECT_EQ(FileOf("logo.png"), ":/pictures/logo.png");
  EXPECT_EQ(FileOf("tools/print.svg"), ":/pictures/tools/print.svg");
}

TEST(PictureFiles, AnAbsolutePathIsThePlayersOwnFile) {
  EXPECT_EQ(FileOf("/home/player/SysMap.jpg"), "/home/player/SysMap.jpg");
}

TEST(PictureFiles, NothingNamesNoFile) {
  EXPECT_TRUE(FileOf("").isEmpty());
}

TEST(PictureFiles, AllPicturesOfSystemsAndObjectsAreThere) {
  for (int i = 0; i < kSystemPictures; ++i) {
    EXPECT_TRUE(QFile::exists(FileOf("SysMapGfx", i))) << i;
  }
  for (const char* loadout : {"", "battleship", "factory", "space_station", "trading_outpost",
                              "gasminer", "miningbase", "SECRET_", "docking_ring"}) {
    EXPECT_TRUE(QFile::exists(FileOf(std::string(ObjectPicture(loadout))))) << loadout;
  }
}

}  // namespace
}  // namespace orrerix
