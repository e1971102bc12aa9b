// SPDX-License-Identifier: MIT
#include "online/spoiler_warning.h"

#include <gmock/gmock.h>

#include "db/engine/engine.h"
#include "db/schema.h"
#include "shell/startup.h"
#include "support/failure_sinks.h"
#include "support/fake_message_boxes.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

using ::testing::EndsWith;
using ::testing::StartsWith;

SpoilerTexts With(std::string_view file) {
  return WithModTexts(DefaultSpoilerTexts(Language::English), file);
}

TEST(SpoilerTexts, TheProgramHasItsOwn) {
  const SpoilerTexts texts = DefaultSpoilerTexts(Language::English);

  EXPECT_EQ(texts.HeadLine, "Default SPOILER-WARNING");
  EXPECT_EQ(texts.Ok, "OK - View MAP and spoil it");
  EXPECT_EQ(texts.Cancel, "Cancel - Quit and search on my own");
  EXPECT_THAT(texts.Text, StartsWith("WARNING! The use of FL Orrerix will spoil the game for you."
                                     "\r\nIf you dont"));
  EXPECT_THAT(texts.Text, EndsWith("\r\n\r\nHave fun playing, exploring and useing OX - Vantor."));
}

TEST(SpoilerTexts, AModsFileReplacesThem) {
  const SpoilerTexts texts = With(
      "OK = Go on\r\nCancel=Stay\r\nheadline = Beware\r\nText = Dragons.\r\nMany of them.\r\n");

  EXPECT_EQ(texts.Ok, "&OK - Go on");
  EXPECT_EQ(texts.Cancel, "&CANCEL - Stay");
  EXPECT_EQ(texts.HeadLine, "Beware");
  EXPECT_EQ(texts.Text, "Dragons.\r\nMany of them.\r\n");
}

TEST(SpoilerTexts, WithoutTheMarkerTheTextStays) {
  const SpoilerTexts texts = With("ok = Go on\r\nheadline = Beware\r\n");

  EXPECT_EQ(texts.Ok, "&OK - Go on");
  EXPECT_EQ(texts.HeadLine, "Beware");
  EXPECT_EQ(texts.Text, DefaultSpoilerTexts(Language::English).Text);
}

TEST(SpoilerTexts, TheCharacterAfterTheMarkerIsSkippedWhateverItIs) {
  EXPECT_EQ(With("Text =xDragons").Text, "Dragons");
}

TEST(SpoilerTexts, TheMarkerInSmallLettersIsNone) {
  EXPECT_EQ(With("text = Dragons").Text, DefaultSpoilerTexts(Language::English).Text);
}

TEST(SpoilerTexts, EmptyValuesAndAnEmptyFileChangeNothing) {
  for (const char* file : {"", "ok = \r\nheadline = \r\nText =", "Text =    "}) {
    const SpoilerTexts texts = With(file);
    EXPECT_EQ(texts.Ok, DefaultSpoilerTexts(Language::English).Ok) << file;
    EXPECT_EQ(texts.HeadLine, DefaultSpoilerTexts(Language::English).HeadLine) << file;
    EXPECT_EQ(texts.Text, DefaultSpoilerTexts(Language::English).Text) << file;
  }
}

TEST(SpoilerTexts, LettersAreThoseOfTheGamesFiles) {
  EXPECT_EQ(With("headline = Gef\xE4hrlich\r\n").HeadLine, "Gefährlich");
}

TEST(SpoilerTexts, TheyAreReadFromTheGamesDataFolder) {
  TempFolder folder;
  EXPECT_EQ(ReadSpoilerTexts(GameFolder(folder.Path().string()), Language::English).HeadLine,
            DefaultSpoilerTexts(Language::English).HeadLine);
  folder.Write("DATA/orrerixwarning.INI", "headline = Beware\r\n");

  EXPECT_EQ(ReadSpoilerTexts(GameFolder(folder.Path().string()), Language::English).HeadLine,
            "Beware");
}

class WarningSwitch : public ::testing::Test {
 protected:
  void MakeFile() {
    Database universe = DBEngine::CreateDatabase(mustWork, file, JetVersionOption::Version40);
    for (const TableDef& table : FixedTables()) universe.CreateTable(mustWork, table);
  }
  bool Wanted() { return IsWarningWanted(mustWork, file); }

  TempFolder folder;
  std::filesystem::path file = folder.Path() / "Orrerix.fl";
  FailTest mustWork;
};

TEST_F(WarningSwitch, OffTheWarningIsNotWantedAndOnItIs) {
  MakeFile();
  EXPECT_TRUE(Wanted());

  SetWarningOff(file, true);
  EXPECT_FALSE(Wanted());
  SetWarningOff(file, false);
  EXPECT_TRUE(Wanted());
}

TEST_F(WarningSwitch, WithoutARowOneIsMade) {
  MakeFile();

  SetWarningOff(file, true);

  EXPECT_FALSE(Wanted());
}

TEST_F(WarningSwitch, AMissingFileIsPassedOver) {
  SetWarningOff(file, true);

  EXPECT_FALSE(std::filesystem::exists(file));
}

}  // namespace
}  // namespace orrerix
