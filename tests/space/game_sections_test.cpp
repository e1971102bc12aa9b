// SPDX-License-Identifier: MIT
#include "space/game_sections.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

TEST(GameSections, HaveTheirEntries) {
  const auto sections =
      SectionsOf("lost = 1\r\n[ Solar ]\r\nNickname = Sun ; hot\r\n;type = X\r\n[b]");

  ASSERT_EQ(sections.size(), 2u);
  EXPECT_EQ(sections[0].Name, "solar");
  EXPECT_EQ(sections[0].Value("nickname"), "Sun");
  EXPECT_EQ(sections[0].Value("type"), "");
}

TEST(GameSections, OfAFileThatIsNotThereAreNone) {
  const TempFolder folder;
  folder.Write("DATA/x.ini", "BINI");  // damaged

  EXPECT_TRUE(ReadGameSections(GameFolder(folder.Path().string()), "y.ini").empty());
  EXPECT_TRUE(ReadGameSections(GameFolder(folder.Path().string()), "x.ini").empty());
}

}  // namespace
}  // namespace orrerix
