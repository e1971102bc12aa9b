// SPDX-License-Identifier: MIT
#include "picture/picture_files.h"

#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <vector>

#include <gtest/gtest.h>

#include "map/layers/borders.h"
#include "map/layers/object_classes.h"
#include "map/layers/system_pictures.h"
#include "map/panel/side_panel.h"
#include "picture/picture_store.h"
#include "picture/twips.h"

namespace orrerix {
namespace {

QString FileOf(const std::string& picture, std::optional<int> index = std::nullopt) {
  return PictureFile(MakePicture(ControlId::MapIcon, index, {}, picture));
}

QString OwnFileOf(ControlId id, std::optional<int> index = std::nullopt) {
  return PictureFile(MakePicture(id, index, {}));
}

TEST(PictureFiles, ControlsThatCarryAPictureHaveItsFile) {
  EXPECT_EQ(OwnFileOf(ControlId::PaintedUniverse), ":/pictures/star_map.jpg");
  EXPECT_EQ(OwnFileOf(ControlId::BackgroundTile), ":/pictures/hintergrund.png");
  EXPECT_EQ(OwnFileOf(ControlId::EmptyCell), ":/pictures/blanko.jpg");
  EXPECT_EQ(FileOf("JumpHole"), ":/pictures/icons/jumphole.svg");
  EXPECT_EQ(FileOf("WaterlooStation"), ":/pictures/icons/waterloostation.svg");
}

TEST(PictureFiles, SystemPicturesGoByTheirIndex) {
  EXPECT_EQ(OwnFileOf(ControlId::SystemPicture, 7), ":/pictures/systems/07.jpg");
  EXPECT_EQ(OwnFileOf(ControlId::SystemPicture, 46), ":/pictures/systems/46.jpg");
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

TEST(PictureFiles, PaintedPicturesAreThereInTwiceAndThriceTheirSizeToo) {
  std::vector<QString> names = {"star_map.jpg",        "hintergrund.png", "blanko.jpg",
                                "itac_background.jpg", "itac_head.png",   "logo.png",
                                "station/strip.jpg"};
  for (int i = 0; i < kSystemPictures; ++i) {
    names.push_back(QStringLiteral("systems/%1.jpg").arg(i, 2, 10, QLatin1Char('0')));
  }
  PictureStore store;
  for (const QString& name : names) {
    const QString file = ":/pictures/" + name;
    const QSize natural = store.NaturalSize(file);
    for (const int scale : {1, 2, 3}) {
      const QString variant = store.VariantFor(file, natural * scale);

      EXPECT_EQ(QImageReader(variant).size(), natural * scale) << variant.toStdString();
    }
  }
}

TEST(PictureFiles, AllPicturesTogetherStayBelowSixMegabytes) {
  qint64 bytes = 0;
  QDirIterator files(":/pictures", QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) bytes += QFile(files.next()).size();

  EXPECT_GT(bytes, 1'000'000);
  EXPECT_LT(bytes, 6'000'000);
}

TEST(PictureFiles, BorderPiecesAreDrawingsOfTheSizesThatTheirControlsHave) {
  PictureStore store;
  for (const auto set :
       {BorderSet::Map, BorderSet::InfoBox, BorderSet::Options, BorderSet::Tools}) {
    const ControlList pieces = BorderPieces(set, 0, 0, 15 * 1000, 15 * 1000);
    for (std::size_t k = 0; k < pieces.size(); ++k) {
      const QString file = PictureFile(pieces[k]);
      const QSize natural = store.NaturalSize(file);

      EXPECT_TRUE(store.VariantFor(file, natural).endsWith(".svg")) << file.toStdString();
      const bool lying = k == 1 || k == 6;
      const bool standing = k == 3 || k == 4;
      const int width = lying ? natural.width() : static_cast<int>(Pixels(pieces[k].Place.Width));
      const int height =
          standing ? natural.height() : static_cast<int>(Pixels(pieces[k].Place.Height));
      EXPECT_EQ(natural, QSize(width, height)) << file.toStdString();
    }
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
    EXPECT_TRUE(QFile::exists(OwnFileOf(ControlId::SystemPicture, i))) << i;
  }
  for (const char* loadout : {"", "battleship", "factory", "space_station", "trading_outpost",
                              "gasminer", "miningbase", "SECRET_", "docking_ring"}) {
    EXPECT_TRUE(QFile::exists(FileOf(std::string(ObjectPicture(loadout))))) << loadout;
  }
}

}  // namespace
}  // namespace orrerix
