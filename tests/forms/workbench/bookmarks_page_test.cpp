// SPDX-License-Identifier: MIT
#include "forms/workbench/bookmarks_page.h"

#include "forms/form_fixture.h"

namespace orrerix {
namespace {

const Bookmark kYork{"New York", "", "", {8, 10, 8, 10}};

class BookmarksPageTest : public ::testing::Test {
 protected:
  BookmarksPageTest() { Open(); }

  void Open() {
    page = std::make_unique<BookmarksPage>(
        choice, File(),
        BookmarksPage::Actions{[] { return kYork; },
                               [this](const Bookmark& mark) { shown.push_back(mark); }});
  }
  std::filesystem::path File() { return folder.Path() / "Orrerix-Bookmarks.txt"; }
  QTableWidget& Rows() { return Find<QTableWidget>(*page, "Bookmarks"); }
  void Click(const char* button) { Find<QAbstractButton>(*page, button).click(); }

  TempFolder folder;
  LanguageChoice choice;
  std::unique_ptr<BookmarksPage> page;
  std::vector<Bookmark> shown;
};

TEST_F(BookmarksPageTest, KeepsWhatTheMapShowsWithANote) {
  Click("BookmarkAdd");
  Rows().item(0, 1)->setText("cheap nanobots");

  Open();

  ASSERT_EQ(Rows().rowCount(), 1);
  EXPECT_EQ(Rows().item(0, 0)->text(), "New York");
  EXPECT_EQ(Rows().item(0, 1)->text(), "cheap nanobots");
}

TEST_F(BookmarksPageTest, LeadsBack) {
  Click("BookmarkShow");
  Click("BookmarkAdd");

  Click("BookmarkShow");

  EXPECT_EQ(shown, std::vector<Bookmark>{kYork});
}

TEST_F(BookmarksPageTest, ForgetsWhatIsDeleted) {
  Click("BookmarkAdd");
  Click("BookmarkDelete");
  Click("BookmarkDelete");

  Open();

  EXPECT_EQ(Rows().rowCount(), 0);
}

TEST_F(BookmarksPageTest, TakesTheBookmarksOfAFile) {
  const auto file = folder.Path() / "from a friend.txt";
  SaveBookmarks(file, {kYork, {"West", "", "", {0, 0, 4, 18}}});
  Click("BookmarkAdd");

  page->TakeFrom(file);

  EXPECT_EQ(Rows().rowCount(), 2);
  EXPECT_EQ(Find<QLabel>(*page, "BookmarksState").text(), "1 bookmarks were added");
  page->TakeFrom(folder.Write("x.txt", "no bookmarks"));
  EXPECT_TRUE(Find<QLabel>(*page, "BookmarksState").text().endsWith("x.txt' holds no bookmarks"));
  EXPECT_EQ(Rows().rowCount(), 2);
}

}  // namespace
}  // namespace orrerix
