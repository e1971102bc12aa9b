// SPDX-License-Identifier: MIT
#include <QFile>
#include <QImage>

#include <gtest/gtest.h>

#include "cli/verbs.h"
#include "demo/demo_game.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

// The universe of a small demo game, imported once for all tests.
class RenderVerb : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder = new TempFolder;
    WriteDemoGame(folder->Path() / "game", 12);
    Call({"import", "--game", (folder->Path() / "game").string(), "--quiet", "--log",
          (folder->Path() / "log").string()});
  }
  static void TearDownTestSuite() {
    delete folder;
    folder = nullptr;
  }

  // Runs a verb on the universe file as the program does; the exit code.
  static int Call(std::vector<std::string> words) {
    CLI::App app;
    CommonOptions options;
    options.Database = (folder->Path() / "Orrerix.fl").string();
    Verb run;
    AddImportVerb(app, options, run);
    AddRenderVerb(app, options, run);
    std::reverse(words.begin(), words.end());
    app.parse(words);
    return run();
  }

  static std::string File(const std::string& name) { return (folder->Path() / name).string(); }
  static QByteArray StartOf(const std::string& name) {
    QFile file(QString::fromStdString(File(name)));
    return file.open(QIODevice::ReadOnly) ? file.read(5) : QByteArray();
  }
  static QImage Picture(const std::string& name) {
    return QImage(QString::fromStdString(File(name)));
  }

  inline static TempFolder* folder = nullptr;
};

TEST_F(RenderVerb, ThePictureIsThatOfTheFrame) {
  // (24000 - 200) / 15 by (18000 - 550) / 15
  EXPECT_EQ(Call({"render", File("map.png")}), kDone);
  EXPECT_EQ(Picture("map.png").size(), QSize(1587, 1163));
}

TEST_F(RenderVerb, ItsOuterColumnsAndRowsAreThoseOfTheMap) {
  ASSERT_EQ(Call({"render", File("edges.png"), "--print"}), kDone);
  const QImage image = Picture("edges.png");

  // Nothing but paper, names and lines: an edge that was not filled would be grey.
  for (int y = 0; y < image.height(); y += 7) {
    EXPECT_EQ(image.pixelColor(0, y), QColor(Qt::white)) << y;
  }
  for (int x = 0; x < 900; x += 7) {
    EXPECT_EQ(image.pixelColor(x, 0), QColor(Qt::white)) << x;
    EXPECT_EQ(image.pixelColor(x, image.height() - 1), QColor(Qt::white)) << x;
  }
}

TEST_F(RenderVerb, PixelsScaleIt) {
  EXPECT_EQ(Call({"render", File("small.png"), "--pixels", "400x300"}), kDone);
  EXPECT_EQ(Picture("small.png").size(), QSize(400, 300));
}

TEST_F(RenderVerb, APrintedMapIsOnWhite) {
  EXPECT_EQ(Call({"render", File("print.png"), "--print", "--pixels", "400x300"}), kDone);
  EXPECT_EQ(Picture("print.png").pixelColor(250, 295), QColor(Qt::white));
}

TEST_F(RenderVerb, TheEndingTellsTheKindOfFile) {
  EXPECT_EQ(Call({"render", File("map.png"), "--pixels", "400x300"}), kDone);
  EXPECT_EQ(Call({"render", File("map.pdf"), "--pixels", "400x300"}), kDone);

  EXPECT_EQ(StartOf("map.png"), "\x89PNG\r");
  EXPECT_EQ(StartOf("map.pdf"), "%PDF-");
  EXPECT_THROW(Call({"render", File("map.gif")}), WrongUsage);
}

TEST_F(RenderVerb, AnSvgIsWrittenOrSaidToBeBeyondThisProgram) {
#ifdef ORRERIX_WITH_SVG_OUTPUT
  EXPECT_EQ(Call({"render", File("map.svg"), "--pixels", "400x300"}), kDone);
  EXPECT_EQ(StartOf("map.svg"), "<?xml");
#else
  EXPECT_THROW(Call({"render", File("map.svg")}), CouldNot);
#endif
}

TEST_F(RenderVerb, WrongWordsAreWrongUsage) {
  EXPECT_THROW(Call({"render", File("map.png"), "--pixels", "wide"}), WrongUsage);
  EXPECT_THROW(Call({"render", File("map.png"), "--pixels", "0x10"}), WrongUsage);
  EXPECT_THROW(Call({"render", File("map.png"), "--zoom", "0,0,18,1"}), WrongUsage);
}

TEST_F(RenderVerb, AFileThatCannotBeWrittenIsSaid) {
  EXPECT_THROW(Call({"render", File("nowhere/map.png")}), CouldNot);
}

}  // namespace
}  // namespace orrerix
