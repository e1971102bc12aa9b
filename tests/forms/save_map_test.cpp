// SPDX-License-Identifier: MIT
#include "forms/save_map.h"

#include <QGraphicsRectItem>
#include <QImage>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

class SaveMapTest : public ::testing::Test {
 protected:
  SaveMapTest() {
    scene.setSceneRect(0, 0, 300, 200);
    scene.setBackgroundBrush(Qt::black);
    scene.addRect(50, 50, 20, 20, Qt::NoPen, Qt::red);
    view.setFrameShape(QFrame::NoFrame);
    view.resize(300, 200);
    view.show();
  }

  QString Save(const char* name) {
    return SaveMap(view, {40, 40, 100, 80},
                   QString::fromStdString((folder.Path() / name).string()));
  }

  TempFolder folder;
  QGraphicsScene scene;
  QGraphicsView view{&scene};
};

// The square lies 10 pixels inside the part; the picture has twice its size.
TEST_F(SaveMapTest, APngShowsThePartInTwiceItsSize) {
  const QImage picture(Save("map.png"));

  EXPECT_EQ(picture.size(), QSize(200, 160));
  EXPECT_EQ(picture.pixelColor(30, 30), QColor(Qt::red));
  EXPECT_EQ(picture.pixelColor(70, 30), QColor(Qt::black));
}

TEST_F(SaveMapTest, WithoutAnEndingItIsAPng) {
  EXPECT_TRUE(Save("map").endsWith("map.png"));
}

TEST_F(SaveMapTest, OtherKindsAreWrittenByTheirEnding) {
  for (const QString& filter : PictureFilters()) {
    const QString ending = filter.section("*", 1).chopped(1);
    const QString file = Save(("map" + ending).toStdString().c_str());

    ASSERT_TRUE(file.endsWith(ending));
    EXPECT_GT(QFile(file).size(), 200) << file.toStdString();
  }
}

TEST_F(SaveMapTest, AFolderThatIsNotThereIsSaid) {
  EXPECT_EQ(Save("none/map.png"), "");
  EXPECT_EQ(Save("none/map.pdf"), "");
}

}  // namespace
}  // namespace orrerix
