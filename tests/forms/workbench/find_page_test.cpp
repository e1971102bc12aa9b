// SPDX-License-Identifier: MIT
#include "forms/workbench/find_page.h"

#include "forms/layers/layers_fixture.h"
#include "forms/workbench/fake_workbench_host.h"

namespace orrerix {
namespace {

class FindPageTest : public LayersFixture {
 protected:
  FindPageTest() {
    file.CreateTable(mustWork, DockObjectsTable());
    AddTo("ids_name", {{"ID", 1}, {"Name", "Patriot"}, {"DLL", "x"}});
    AddTo("Ships", {{"NickName", "li_fighter"}, {"RealName", "Patriot"}, {"ids_name", 1}});
    AddTo("Objects", {{"nickname", "fort"},
                      {"realname", "Fort Bush"},
                      {"dock_with", "fort_base"},
                      {"sys_nick", "Li01"},
                      {"pos", "1, 2, 3"}});
    file.Close();
    std::filesystem::rename(UniverseFile(), folder.Path() / "Orrerix.fl");
    page.show();
    page.Enter();
  }

  void Type(const QString& text) {
    Find<QLineEdit>(page, "FindText").setText(text);
    WaitUntil([&] { return Rows().topLevelItemCount() > 0; });
  }
  QTreeWidget& Rows() { return Find<QTreeWidget>(page, "FindRows"); }
  void Press(Qt::Key key) { QTest::keyClick(&Find<QLineEdit>(page, "FindText"), key); }

  FakeWorkbenchHost host{log, folder.Path()};
  std::vector<MapCell> cells;
  std::vector<std::string> atlas;
  FindPage page{host,
                choice,
                {[this](MapCell cell) { cells.push_back(cell); },
                 [this](const std::string& table, const std::string& name) {
                   atlas.push_back(table + " " + name);
                 }}};
};

TEST_F(FindPageTest, TheMapFollowsWhatIsTyped) {
  Type("bush");

  ASSERT_EQ(Rows().topLevelItemCount(), 1);
  EXPECT_EQ(Rows().topLevelItem(0)->text(0), "Fort Bush");
  EXPECT_EQ(Rows().topLevelItem(0)->text(2), "New York");
  EXPECT_EQ(Find<QLabel>(page, "FindSums").text(), "1 found");
  ASSERT_FALSE(cells.empty());
  EXPECT_EQ(cells.back(), (MapCell{8, 10}));
  EXPECT_TRUE(host.Shown.empty());
}

TEST_F(FindPageTest, EnterOpensTheWindowOfAStation) {
  Type("bush");

  Press(Qt::Key_Return);

  EXPECT_EQ(host.Shown, std::vector<std::string>{"fort"});
}

TEST_F(FindPageTest, EnterLeadsToTheAtlasForWhatHasNoPlace) {
  Type("patriot");
  const std::size_t shown = cells.size();

  Press(Qt::Key_Return);

  EXPECT_EQ(cells.size(), shown);
  EXPECT_EQ(atlas, std::vector<std::string>{"ships Patriot"});
}

TEST_F(FindPageTest, TheArrowKeysChooseWithoutLeavingTheText) {
  Type("o");  // Sol, Fort Bush, Patriot, New York ...
  ASSERT_GT(Rows().topLevelItemCount(), 1);

  Press(Qt::Key_Down);

  EXPECT_EQ(Rows().currentItem(), Rows().topLevelItem(1));
}

}  // namespace
}  // namespace orrerix
