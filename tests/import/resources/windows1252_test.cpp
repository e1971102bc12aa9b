// SPDX-License-Identifier: MIT
#include "import/resources/windows1252.h"

#include <string>

#include <gtest/gtest.h>

#include "db/values/text.h"

namespace orrerix {
namespace {

TEST(Windows1252, PlainLettersStay) {
  EXPECT_EQ(FromWindows1252("Li01_01_Base"), "Li01_01_Base");
  EXPECT_EQ(FromWindows1252(""), "");
}

TEST(Windows1252, UpperHalfBecomesUtf8) {
  EXPECT_EQ(FromWindows1252("M\xFCnchen"), "München");
  EXPECT_EQ(FromWindows1252("\x80 \x85 \x93\x94 \x99 \x9F"), "€ … “” ™ Ÿ");
  EXPECT_EQ(FromWindows1252("\xA0\xFF"), "\u00A0ÿ");
}

TEST(Windows1252, OpenBytesAreTheControlsOfTheSameNumber) {
  EXPECT_EQ(FromWindows1252("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(Windows1252, AsciiNeedsNoCopy) {
  const std::string ascii = "Li01_01_Base";
  Windows1252Reader reader;

  EXPECT_EQ(reader.Utf8(ascii).data(), ascii.data());
  EXPECT_EQ(reader.Utf8("M\xFCnchen"), "München");
}

TEST(Windows1252, EveryByteIsOneCharacterThatTheSetHas) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string text = FromWindows1252(std::string(1, static_cast<char>(byte)));
    std::size_t at = 0;

    EXPECT_EQ(Len(text), 1u) << byte;
    EXPECT_TRUE(IsInWindows1252(NextCodePoint(text, at))) << byte;
  }
}

TEST(Windows1252, LacksWhatNoByteStandsFor) {
  for (const char32_t c : {U'\u0080', U'\u0085', U'Ā', U'п', U'→', U'\U0001F680'}) {
    EXPECT_FALSE(IsInWindows1252(c)) << static_cast<std::uint32_t>(c);
  }
}

}  // namespace
}  // namespace orrerix
