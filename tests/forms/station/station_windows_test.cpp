// SPDX-License-Identifier: MIT
#include <QPointer>
#include <QScreen>

#include "db/engine/engine.h"
#include "db/schema.h"
#include "forms/form_fixture.h"
#include "forms/station/station_info.h"
#include "support/failure_sinks.h"

namespace orrerix {
namespace {

class StationWindowsTest : public FormFixture {
 protected:
  StationWindowsTest() {
    for (const TableDef& table : FixedTables()) db.CreateTable(mustWork, table);
    db.CreateTable(mustWork, DockObjectsTable());
  }

  FixedLanguage english{Language::English};
  CellNames names;
  FailTest mustWork;
  Database db = DBEngine::CreateInMemory(mustWork);
  QSettings remembered{QString::fromStdString((folder.Path() / "tools.ini").string()),
                       QSettings::IniFormat};
  StationWindows stations{{log, pictures, sound, english, names,
                           [this](Routine&) {
                             return Universe{log, db};
                           },
                           [] { return QSize(0, 0); }, nullptr, nullptr, nullptr,
                           [this] { return &remembered; }}};
};

TEST_F(StationWindowsTest, SeveralStandSideBySideEvenOfOneObject) {
  stations.Open("li01_01_base", "Outpost");
  stations.Open("li01_01_base", "Outpost");
  stations.Open("li01_02_base", "Planet1");

  ASSERT_EQ(stations.Windows().size(), 3U);
  EXPECT_TRUE(stations.Windows()[0]->isVisible());
  EXPECT_TRUE(stations.Windows()[2]->isVisible());
  EXPECT_EQ(stations.Windows()[2]->Nick(), "li01_02_base");
  EXPECT_EQ(stations.Windows()[2]->Picture(), "Planet1");
}

TEST_F(StationWindowsTest, OneThatIsClosedIsFreedAndTheOthersStay) {
  stations.Open("li01_01_base", "Outpost");
  stations.Open("li01_02_base", "Planet1");
  const QPointer<StationInfo> first = stations.Windows()[0].get();

  first->close();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

  EXPECT_TRUE(first.isNull());
  ASSERT_EQ(stations.Windows().size(), 1U);
  EXPECT_EQ(stations.Windows()[0]->Nick(), "li01_02_base");
}

TEST_F(StationWindowsTest, AWindowOpensInTheRightThirdOfTheScreen) {
  stations.Open("li01_01_base", "Outpost");

  const StationInfo& window = *stations.Windows()[0];
  const QRect all = window.screen()->geometry();
  // With its decoration, which a window knows once it is on the screen.
  ASSERT_TRUE(WaitUntil([&] { return window.frameGeometry().width() == all.width() / 3; }));
  EXPECT_EQ(window.frameGeometry().right(), all.right());
  EXPECT_EQ(window.frameGeometry().height(), all.height() - 26);  // 400 twips
}

// Steps of 32 pixels.
TEST_F(StationWindowsTest, FurtherWindowsStandAStepBesideThoseBefore) {
  for (const char* name : {"li01_01_base", "li01_02_base", "li01_03_base"}) {
    stations.Open(name, "Outpost");
  }

  const auto& windows = stations.Windows();
  const QRect first = windows[0]->geometry();
  EXPECT_EQ(windows[1]->geometry().topLeft(), first.topLeft() + QPoint(-32, 32));
  EXPECT_EQ(windows[2]->geometry().topLeft(), first.topLeft() + QPoint(-64, 64));
  // None reaches lower than the first.
  EXPECT_EQ(windows[2]->geometry().bottom(), first.bottom());
  EXPECT_EQ(windows[2]->width(), first.width());
}

TEST_F(StationWindowsTest, ThePlaceOfAClosedWindowIsTakenAgain) {
  stations.Open("li01_01_base", "Outpost");
  stations.Open("li01_02_base", "Outpost");
  const QPoint first = stations.Windows()[0]->pos();
  stations.Windows()[0]->close();

  stations.Open("li01_03_base", "Outpost");

  EXPECT_EQ(stations.Windows()[1]->pos(), first);
}

TEST_F(StationWindowsTest, ASizeThatTheUserGaveIsThatOfTheNext) {
  stations.Open("li01_01_base", "Outpost");
  StationInfo& window = *stations.Windows()[0];
  ASSERT_TRUE(WaitUntil([&] { return window.IsSettled(); }));
  window.resize(400, 300);
  PassEvents();
  const QSize outer = window.frameGeometry().size();
  window.close();

  stations.Open("li01_02_base", "Outpost");

  const StationInfo& next = *stations.Windows()[0];
  ASSERT_TRUE(WaitUntil([&] { return next.frameGeometry().size() == outer; }));
  EXPECT_EQ(next.frameGeometry().right(), next.screen()->geometry().right());
}

TEST_F(StationWindowsTest, ASizeThatNobodyChangedIsNotKept) {
  stations.Open("li01_01_base", "Outpost");
  ASSERT_TRUE(WaitUntil([&] { return stations.Windows()[0]->IsSettled(); }));

  stations.CloseAll();

  EXPECT_TRUE(remembered.allKeys().isEmpty());
}

}  // namespace
}  // namespace orrerix
