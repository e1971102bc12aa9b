// SPDX-License-Identifier: MIT
#include "forms/interface_scale.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

class InterfaceScaleTest : public ::testing::Test {
 protected:
  InterfaceScaleTest() : before_(qgetenv("QT_SCALE_FACTOR")) { qunsetenv("QT_SCALE_FACTOR"); }
  ~InterfaceScaleTest() override {
    before_.isEmpty() ? qunsetenv("QT_SCALE_FACTOR") : qputenv("QT_SCALE_FACTOR", before_);
  }

  void Store(int percent) {
    QSettings settings(ToolsSettingsFile(folder.Path()), QSettings::IniFormat);
    StoreScale(settings, percent);
  }

  TempFolder folder;

 private:
  QByteArray before_;
};

TEST_F(InterfaceScaleTest, GoesFrom75To200) {
  EXPECT_EQ(InterfaceScales().front(), 75);
  EXPECT_EQ(InterfaceScales().back(), 200);
}

TEST_F(InterfaceScaleTest, OfTheSettingsIsThatOfTheNextStart) {
  Store(150);

  ApplyStoredScale(folder.Path());

  EXPECT_EQ(qgetenv("QT_SCALE_FACTOR"), "1.5");
}

TEST_F(InterfaceScaleTest, IsAsUsualWithoutASetting) {
  ApplyStoredScale(folder.Path());
  Store(12345);
  ApplyStoredScale(folder.Path());

  EXPECT_FALSE(qEnvironmentVariableIsSet("QT_SCALE_FACTOR"));
}

TEST_F(InterfaceScaleTest, OfTheDesktopStays) {
  qputenv("QT_SCALE_FACTOR", "3");
  Store(150);

  ApplyStoredScale(folder.Path());

  EXPECT_EQ(qgetenv("QT_SCALE_FACTOR"), "3");
}

}  // namespace
}  // namespace orrerix
