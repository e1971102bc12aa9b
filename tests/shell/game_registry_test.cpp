// SPDX-License-Identifier: MIT
#include "shell/game_registry.h"

#include <map>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_message_boxes.h"

namespace orrerix {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

// Values by "hive\key\value", and all real paths below "/real".
class FakeRegistry : public Registry {
 public:
  std::map<std::string, RegistryValue> Values;
  std::map<std::string, std::string> Paths;

  std::optional<RegistryValue> Query(RegistryHive hive, std::string_view key,
                                     std::string_view value) const override {
    const auto found = Values.find((hive == RegistryHive::LocalMachine ? "HKLM\\" : "HKCU\\") +
                                   std::string(key) + "\\" + std::string(value));
    return found == Values.end() ? std::nullopt : std::optional(found->second);
  }
  std::optional<std::string> RealPath(std::string_view path) const override {
    const auto found = Paths.find(std::string(path));
    return found == Paths.end() ? std::nullopt : std::optional(found->second);
  }
};

const std::string kVersion1 =
    "HKLM\\SOFTWARE\\Microsoft\\Microsoft Games\\Freelancer\\1.0\\AppPath";
const std::string kVersion2 =
    "HKLM\\SOFTWARE\\Microsoft\\Microsoft Games\\Freelancer\\2.0\\AppPath";
const std::string kShellFolders =
    "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders\\";

class TheRegistry : public ::testing::Test {
 protected:
  FakeMessageBoxes messages;
  ErrorLog log{messages, AppVersion{1, 0, 0}};
  FakeRegistry registry;
  GameRegistry game{log, registry};
};

TEST_F(TheRegistry, TellsTheGamesFolder) {
  registry.Values[kVersion1] = "C:\\Games\\FL";
  registry.Values[kVersion2] = "C:\\Games\\Other";
  registry.Paths["C:\\Games\\FL"] = "/real/fl";

  EXPECT_EQ(game.GetFLPath(), "/real/fl");
}

TEST_F(TheRegistry, AsksForTheSecondVersionWhereTheFirstIsEmpty) {
  registry.Values[kVersion1] = "";
  registry.Values[kVersion2] = "C:\\Games\\Other";
  registry.Paths["C:\\Games\\Other"] = "/real/other";

  EXPECT_EQ(game.GetFLPath(), "/real/other");
}

TEST_F(TheRegistry, FallsBackToTheCustomaryPlace) {
  registry.Paths["C:\\Programme\\Microsoft Games\\Freelancer"] = "/real/customary";

  EXPECT_EQ(game.GetFLPath(), "/real/customary");
}

TEST_F(TheRegistry, AFinalCharacterOfCodeZeroIsNoPartOfThePath) {
  registry.Values[kVersion1] = std::string("C:\\Games\\FL\0", 12);
  registry.Paths["C:\\Games\\FL"] = "/real/fl";

  EXPECT_EQ(game.GetFLPath(), "/real/fl");
}

TEST_F(TheRegistry, AValueOfNothingButThatCharacterCountsAsEmpty) {
  registry.Values[kVersion1] = std::string(1, '\0');
  registry.Values[kVersion2] = "C:\\Games\\Other";
  registry.Paths["C:\\Games\\Other"] = "/real/other";

  EXPECT_EQ(game.GetFLPath(), "/real/other");
}

TEST_F(TheRegistry, AFolderThatIsNotThereIsAFailureAndBlank) {
  registry.Values[kVersion1] = "C:\\Games\\FL";

  EXPECT_EQ(game.GetFLPath(), std::string(255, ' '));

  ASSERT_THAT(log.Failures(), SizeIs(1));
  EXPECT_EQ(log.Failures()[0].What.Number, 5);
  EXPECT_EQ(log.Failures()[0].Source, "Module1.GetFLPath");
  EXPECT_EQ(log.Failures()[0].Info, "While getting FL-Path from Registry");
}

TEST_F(TheRegistry, TellsTheUsersFolders) {
  registry.Values[kShellFolders + "Desktop"] = std::string("C:\\d\0", 5);
  registry.Values[kShellFolders + "Programs"] = "C:\\p";
  registry.Values[kShellFolders + "Personal"] = "C:\\m";
  registry.Paths = {{"C:\\d", "/real/d"}, {"C:\\p", "/real/p"}, {"C:\\m", "/real/m"}};

  EXPECT_EQ(game.GetDesktopFolder(), "/real/d");
  EXPECT_EQ(game.GetProgramsFolder(), "/real/p");
  EXPECT_EQ(game.GetPersonalFolder(), "/real/m");
  EXPECT_THAT(log.Failures(), IsEmpty());
}

TEST_F(TheRegistry, LeavesFoldersItDoesNotKnowToTheSystem) {
  EXPECT_EQ(game.GetDesktopFolder(), DefaultShellFolder(ShellFolder::Desktop));
  EXPECT_EQ(game.GetProgramsFolder(), DefaultShellFolder(ShellFolder::Programs));
  EXPECT_EQ(game.GetPersonalFolder(), DefaultShellFolder(ShellFolder::Personal));
}

TEST_F(TheRegistry, GivesNumbersAsTexts) {
  registry.Values["HKCU\\key\\value"] = std::uint32_t{4000000000};

  EXPECT_EQ(game.QueryValue("key", "value", true), "4000000000");
  EXPECT_EQ(game.QueryValue("key", "value", false), "");
  EXPECT_EQ(game.QueryValue("key", "other", true), "");
}

}  // namespace
}  // namespace orrerix
