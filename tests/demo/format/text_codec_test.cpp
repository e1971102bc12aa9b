// SPDX-License-Identifier: MIT
#include "demo/format/text_codec.h"

#include <gtest/gtest.h>

namespace orrerix::demo {
namespace {

TEST(TextCodec, LettersOfTheCodePageKeepTheirByte) {
  EXPECT_EQ(Windows1252FromUtf8("aÄé ß"), "a\xC4\xE9 \xDF");
}

TEST(TextCodec, TheSignsAboveLatin1HaveBytesOfTheirOwn) {
  EXPECT_EQ(Windows1252FromUtf8("€–Œ’Ÿ"), "\x80\x96\x8C\x92\x9F");
}

TEST(TextCodec, WhatTheCodePageLacksBecomesAQuestionMark) {
  EXPECT_EQ(Windows1252FromUtf8("Ω🚀"), "??");
}

TEST(TextCodec, Utf16UsesPairsAboveTheFirstPlane) {
  EXPECT_EQ(Utf16FromUtf8("é€🚀"), u"é€🚀");
  EXPECT_EQ(Utf16FromUtf8("🚀").size(), 2u);
}

TEST(TextCodec, BrokenSequencesBecomeReplacementCharacters) {
  EXPECT_EQ(CodePointsOf("a\xC3"), U"a\uFFFD");                // cut short
  EXPECT_EQ(CodePointsOf("\x80z"), U"\uFFFDz");                // no lead byte
  EXPECT_EQ(CodePointsOf("\xED\xA0\x80").front(), U'\uFFFD');  // a surrogate
  EXPECT_EQ(CodePointsOf("\xE0\x80\xAF").front(), U'\uFFFD');  // too long a form
}

}  // namespace
}  // namespace orrerix::demo
