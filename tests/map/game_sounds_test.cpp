// SPDX-License-Identifier: MIT
#include "map/game_sounds.h"

#include <gmock/gmock.h>

#include "support/fake_message_boxes.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

using ::testing::IsEmpty;

struct FakeSound : SoundPlayer {
  std::vector<std::filesystem::path> Played;
  void Play(const std::filesystem::path& file) override { Played.push_back(file); }
  void WaitForEnd() override {}
  void Beep() override {}
};

class GameSounds : public ::testing::Test {
 protected:
  void Play() { PlaySoundfile(log, player, GameFolder(folder.Path().string()), kZoomSound); }

  FakeMessageBoxes messages;
  ErrorLog log{messages, AppVersion{1, 0, 0}};
  TempFolder folder;
  FakeSound player;
};

TEST_F(GameSounds, AreFoundBelowTheGameFolderInWhateverCase) {
  const auto file = folder.Write("Data/audio/SOUNDS/ui/UI_nav_map_fade.wav", "RIFF");

  Play();

  ASSERT_THAT(player.Played, ::testing::SizeIs(1));
  EXPECT_TRUE(std::filesystem::equivalent(player.Played[0], file));
}

TEST_F(GameSounds, AreSilentWhereTheirFileIsMissing) {
  Play();

  EXPECT_THAT(player.Played, IsEmpty());
  EXPECT_THAT(log.Failures(), IsEmpty());
  EXPECT_THAT(messages.Shown, IsEmpty());
}

}  // namespace
}  // namespace orrerix
