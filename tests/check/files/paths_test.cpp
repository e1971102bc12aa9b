// SPDX-License-Identifier: MIT
#include "check/files/paths.h"

#include <gtest/gtest.h>

namespace orrerix::check {
namespace {

TEST(Paths, AreResolved) {
  EXPECT_EQ(ResolvePath("a\\b/c.ini"), "a/b/c.ini");
  EXPECT_EQ(ResolvePath("/a//./b/../C.ini/"), "a/C.ini");
  EXPECT_EQ(ResolvePath("a/../../b"), "../b");
  EXPECT_EQ(ResolvePath(""), "");
  EXPECT_EQ(JoinPath("EXE", "..\\data"), "data");
  EXPECT_EQ(JoinPath("", "a.ini"), "a.ini");
}

TEST(Paths, CompareWithoutTheCaseOfAsciiLetters) {
  EXPECT_EQ(PathKey("DATA/\xC3\x84.INI"), "data/\xC3\x84.ini");
}

}  // namespace
}  // namespace orrerix::check
