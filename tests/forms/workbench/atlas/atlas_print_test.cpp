// SPDX-License-Identifier: MIT
// Tables of the atlas on paper.
#include <QFile>

#include "atlas_page_fixture.h"

namespace orrerix {
namespace {

class AtlasPrintTest : public AtlasPageTest {
 protected:
  AtlasPrintTest() {
    page.Output().HasPrinter = [] { return true; };
    page.Output().AskPrinter = [this](QPrinter& printer) {
      ++asked;
      printer.setOutputFileName(file);
      return accepts;
    };
  }
  static QByteArray ContentOf(const QString& name) {
    QFile content(name);
    return content.open(QIODevice::ReadOnly) ? content.readAll() : QByteArray();
  }
  static qsizetype PagesOf(const QString& name) { return ContentOf(name).count("/Type /Page\n"); }
  static PrintedTable Numbers(int rows, int columns) {
    PrintedTable table{"Numbers", {}, {}, rows, [](int row, int column) {
                         return QString("%1 and %2").arg(row).arg(column);
                       }};
    for (int column = 0; column < columns; ++column) {
      table.Heads.append("A head that is wide");
      table.IsNumber.push_back(false);
    }
    return table;
  }

  QString file = QString::fromStdString((folder.Path() / "print.pdf").string());
  int asked = 0;
  bool accepts = true;
};

TEST_F(AtlasPrintTest, TheShownTableIsPrinted) {
  Open(page);

  Find<QPushButton>(page, "Print").click();

  EXPECT_EQ(asked, 1);
  EXPECT_TRUE(ContentOf(file).startsWith("%PDF"));
  EXPECT_EQ(State(page), "3 of 3 rows");
}

TEST_F(AtlasPrintTest, WithoutAPrinterTheMessageSaysSo) {
  page.Output().HasPrinter = [] { return false; };
  Open(page);

  Find<QPushButton>(page, "Print").click();

  EXPECT_EQ(asked, 0);
  EXPECT_EQ(State(page), "This computer has no printer. Export can write a PDF file instead.");
}

TEST_F(AtlasPrintTest, NothingIsPrintedWhereThePlayerGivesUp) {
  accepts = false;
  Open(page);

  Find<QPushButton>(page, "Print").click();

  EXPECT_FALSE(QFile::exists(file));
}

TEST_F(AtlasPrintTest, APrinterThatTakesNothingIsNamed) {
  file = "/nowhere/at/all.pdf";
  Open(page);

  Find<QPushButton>(page, "Print").click();

  EXPECT_EQ(State(page), "Cannot write /nowhere/at/all.pdf");
}

TEST_F(AtlasPrintTest, ANameThatEndsInPdfGivesAPdfFile) {
  Open(page);

  EXPECT_TRUE(page.Output().SaveTo(file));
  EXPECT_TRUE(ContentOf(file).startsWith("%PDF"));
  EXPECT_FALSE(page.Output().SaveTo("/nowhere/at/all.PDF"));
}

TEST_F(AtlasPrintTest, RowsAndColumnsWithoutRoomFollowOnOtherPages) {
  ASSERT_TRUE(WriteTablePdf(file, Numbers(3, 2), Language::English));
  const qsizetype few = PagesOf(file);
  ASSERT_TRUE(WriteTablePdf(file, Numbers(500, 2), Language::English));
  const qsizetype manyRows = PagesOf(file);
  ASSERT_TRUE(WriteTablePdf(file, Numbers(3, 60), Language::English));

  EXPECT_EQ(few, 1);
  EXPECT_GT(manyRows, 4);
  EXPECT_GT(PagesOf(file), 2);
}

TEST_F(AtlasPrintTest, ATableWithoutRowsHasItsHeads) {
  ASSERT_TRUE(WriteTablePdf(file, Numbers(0, 2), Language::English));

  EXPECT_EQ(PagesOf(file), 1);
}

}  // namespace
}  // namespace orrerix
