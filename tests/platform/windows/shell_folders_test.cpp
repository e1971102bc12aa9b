// SPDX-License-Identifier: MIT
#include "platform/shell_folders.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "platform/path_text.h"

namespace orrerix {
namespace {

TEST(ShellFolders, AreWholePathsOfThisUser) {
  for (const ShellFolder folder :
       {ShellFolder::Desktop, ShellFolder::Programs, ShellFolder::Personal}) {
    EXPECT_TRUE(PathOf(DefaultShellFolder(folder)).is_absolute());
  }
}

TEST(ShellFolders, AreThreeDifferentOnes) {
  const std::string desktop = DefaultShellFolder(ShellFolder::Desktop);
  const std::string programs = DefaultShellFolder(ShellFolder::Programs);
  const std::string personal = DefaultShellFolder(ShellFolder::Personal);

  EXPECT_NE(desktop, programs);
  EXPECT_NE(programs, personal);
  EXPECT_NE(personal, desktop);
}

}  // namespace
}  // namespace orrerix
