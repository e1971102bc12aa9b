// SPDX-License-Identifier: MIT
#include "demo/format/wav_writer.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

#include <gtest/gtest.h>

#include "demo/bytes.h"
#include "demo/content/sounds.h"

namespace orrerix {
namespace {

using demo::U16At;
using demo::U32At;
using namespace std::string_view_literals;

TEST(WavWriter, WritesTheUsualHeaderAndTheSamples) {
  const std::string file = WavFile({1, -2}, 8000);

  // 8000 samples a second of 2 bytes are 16000 (3E80) bytes a second; the data has 4 bytes.
  const std::string_view expected =
      "RIFF\x28\0\0\0WAVEfmt \x10\0\0\0\x01\0\x01\0\x40\x1F\0\0\x80\x3E\0\0\x02\0\x10\0"
      "data\x04\0\0\0\x01\0\xFE\xFF"sv;
  EXPECT_EQ(file, expected);
}

TEST(Sounds, FiveSoundsLastBetweenATenthAndHalfASecond) {
  const auto sounds = demo::MenuSounds();

  ASSERT_EQ(sounds.size(), 5u);
  for (const demo::SoundFile& sound : sounds) {
    const double seconds = static_cast<double>(U32At(sound.Bytes, 40)) / U32At(sound.Bytes, 28);
    EXPECT_GE(seconds, 0.0999) << sound.Name;
    EXPECT_LE(seconds, 0.5) << sound.Name;
  }
}

TEST(Sounds, EachBeginsAndEndsInSilenceAndIsHeardBetween) {
  for (const demo::SoundFile& sound : demo::MenuSounds()) {
    int loudest = 0;
    for (std::size_t i = 44; i < sound.Bytes.size(); i += 2) {
      loudest = std::max(loudest, std::abs(static_cast<std::int16_t>(U16At(sound.Bytes, i))));
    }
    EXPECT_EQ(U16At(sound.Bytes, 44), 0u) << sound.Name;
    const auto last = static_cast<std::int16_t>(U16At(sound.Bytes, sound.Bytes.size() - 2));
    EXPECT_LT(std::abs(last), 50) << sound.Name;
    EXPECT_GT(loudest, 5000) << sound.Name;
    EXPECT_LT(loudest, 32000) << sound.Name;
  }
}

}  // namespace
}  // namespace orrerix
