// SPDX-License-Identifier: MIT
#include "platform/windows/system_sound.h"

#include <string>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

using namespace std::string_literals;
using namespace std::chrono_literals;

// 8 bits, one channel, 8000 bytes a second; `size` bytes of silence.
std::string Wav(char low, char high) {
  return "RIFF\0\0\0\0WAVEfmt \x10\0\0\0\1\0\1\0\x40\x1F\0\0\x40\x1F\0\0\1\0\x08\0data"s + low +
         high + "\0\0"s;
}

TEST(WavDuration, IsTheSizeOfTheDataByItsBytesPerSecond) {
  const TempFolder folder;

  // 0x0FA0 = 4000 bytes, half a second.
  EXPECT_EQ(WavDuration(folder.Write("a.wav", Wav('\xA0', '\x0F'))), 500ms);
}

TEST(WavDuration, IsNoneForOtherFiles) {
  const TempFolder folder;

  EXPECT_EQ(WavDuration(folder.Write("a.wav", "RIFF")), 0ms);
  EXPECT_EQ(WavDuration(folder.Write("b.wav", "no sound at all, just text")), 0ms);
  EXPECT_EQ(WavDuration(folder.Path() / "none.wav"), 0ms);
}

TEST(SystemSound, BearsAFileThatIsNotThere) {
  const TempFolder folder;
  SystemSound sound;

  sound.Play(folder.Path() / "none.wav");
  sound.WaitForEnd();
}

}  // namespace
}  // namespace orrerix
