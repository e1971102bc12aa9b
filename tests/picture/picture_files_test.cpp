// SPDX-License-Identifier: MIT
#include "picture/picture_files.h"

#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

#include "map/object_classes.h"
#include "map/side_panel.h"
#include "map/system_pictures.h"
#include "picture/picture_store.h"

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
  EXPECT_EQ(FileOf("/pictures/SysMap.jpg"), "/pictures/SysMap.jpg");
}

TEST(PictureFiles, NothingNamesNoFile) {
  EXPECT_TRUE(FileOf("").isEmpty());
}

TEST(PictureFiles, PaintedPicturesAreThereInTwiceTheirSizeToo) {
  for (const QString name : {"star_map.jpg", "hintergrund.png", "blanko.jpg", "systems/00.jpg",
                             "systems/46.jpg", "logo.png", "rahmen/set0_0.png"}) {
    QString fine = ":/pictures/" + name;
    const QImage natural(fine);
    fine.insert(fine.lastIndexOf('.'), "@2x");

    EXPECT_EQ(QImage(fine).size(), natural.size() * 2) << name.toStdString();
  }
}

// Sky or paper is seen round an icon.
TEST(PictureFiles, IconsOfTheMapHaveClearCorners) {
  PictureStore store;
  for (const char* icon : {"Jumpgate", "JumpHole", "Unbekannt", "Battleship", "Planet1"}) {
    const QImage image = store.Scaled(FileOf(icon), {40, 40}).toImage();
    for (const QPoint corner : {QPoint(0, 0), QPoint(39, 0), QPoint(0, 39), QPoint(39, 39)}) {
      EXPECT_EQ(image.pixelColor(corner).alpha(), 0) << icon;
    }
  }
}

TEST(PictureFiles, TheLogoHasTheProportionsThatThePanelGivesIt) {
  const QImage logo(":/pictures/logo.png");
  const PanelContent content;

  EXPECT_EQ(logo.width() * content.LogoHeight, logo.height() * content.LogoWidth);
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
