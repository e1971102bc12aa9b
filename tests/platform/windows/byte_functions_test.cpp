// SPDX-License-Identifier: MIT
// The program's own memchr, memcmp, memcpy and memmove, on blocks and on what is left after them.
#include <cstring>
#include <string>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(ByteFunctions, FindTheFirstByteAtEveryPlaceOfEveryLength) {
  for (std::size_t length = 1; length <= 50; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      std::string text(length, 'a');
      text[place] = '\xE4';
      text.back() = '\xE4';
      EXPECT_EQ(std::memchr(text.data(), 0xE4, length), text.data() + place) << length;
    }
  }
}

TEST(ByteFunctions, FindNothingAfterTheEnd) {
  const std::string text = std::string(40, 'a') + "b";
  for (std::size_t length = 0; length <= 40; ++length) {
    EXPECT_EQ(std::memchr(text.data(), 'b', length), nullptr) << length;
  }
  EXPECT_EQ(std::memchr(text.data(), 'b', 41), text.data() + 40);
}

TEST(ByteFunctions, SearchForTheLowestByteOfTheNumber) {
  const std::string text(20, 'a');
  EXPECT_EQ(std::memchr(text.data(), 'a' - 256, 20), text.data());
}

TEST(ByteFunctions, CompareByTheFirstDifferenceAsUnsignedBytes) {
  for (std::size_t length = 1; length <= 50; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      std::string less(length, 'm');
      std::string more = less;
      less[place] = 'a';
      more[place] = '\xE4';
      // What follows the first difference does not matter.
      if (place + 1 < length) less.back() = '\xFF';
      EXPECT_LT(std::memcmp(less.data(), more.data(), length), 0) << length << " " << place;
      EXPECT_GT(std::memcmp(more.data(), less.data(), length), 0) << length << " " << place;
      EXPECT_EQ(std::memcmp(more.data(), less.data(), place), 0) << length << " " << place;
    }
  }
}

TEST(ByteFunctions, NothingEqualsNothing) {
  EXPECT_EQ(std::memcmp("a", "b", 0), 0);
}

// The bytes 1, 2, 3 and so on, none of them twice in a row of 200.
std::string Counted(std::size_t length) {
  std::string bytes;
  for (std::size_t i = 0; i < length; ++i) bytes.push_back(static_cast<char>(i % 200 + 1));
  return bytes;
}

TEST(ByteFunctions, CopyEveryLengthAndNothingBesideIt) {
  const std::string source = Counted(200);
  for (std::size_t length = 0; length <= 150; ++length) {
    std::string target(200, '-');
    EXPECT_EQ(std::memcpy(target.data() + 7, source.data() + 3, length), target.data() + 7);
    EXPECT_EQ(target,
              std::string(7, '-') + source.substr(3, length) + std::string(200 - 7 - length, '-'))
        << length;
  }
}

TEST(ByteFunctions, MoveBytesOntoThemselvesFromEitherSide) {
  const std::string whole = Counted(300);
  for (std::size_t length = 0; length <= 150; ++length) {
    for (std::size_t from = 60; from <= 140; ++from) {
      const std::size_t to = 100;
      std::string bytes = whole;
      std::string expected = whole;
      expected.replace(to, length, whole, from, length);
      EXPECT_EQ(std::memmove(bytes.data() + to, bytes.data() + from, length), bytes.data() + to);
      ASSERT_EQ(bytes, expected) << length << " bytes from " << from;
    }
  }
}

}  // namespace
}  // namespace orrerix
