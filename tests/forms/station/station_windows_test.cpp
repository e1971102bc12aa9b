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
  StationWindows stations{{log, pictures, sound, english, names,
                           [this](Routine&) {
                             return Universe{log, db};
                           },
                           [] { return QSize(0, 0); }}};
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

}  // namespace
}  // namespace orrerix
