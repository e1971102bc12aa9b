// SPDX-License-Identifier: MIT
#include "platform/shell_folders.h"

#include <string>

#include <gtest/gtest.h>

#include "support/environment.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

class ShellFolders : public ::testing::Test {
 protected:
  TempFolder folder;
  std::string home = folder.Path().string();
  EnvironmentVariable homeVariable{"HOME", home};
  EnvironmentVariable config{"XDG_CONFIG_HOME", std::nullopt};
  EnvironmentVariable data{"XDG_DATA_HOME", std::nullopt};
};

TEST_F(ShellFolders, AreTheCustomaryOnesWhereNothingElseIsSaid) {
  EXPECT_EQ(DefaultShellFolder(ShellFolder::Desktop), home + "/Desktop");
  EXPECT_EQ(DefaultShellFolder(ShellFolder::Personal), home + "/Documents");
  EXPECT_EQ(DefaultShellFolder(ShellFolder::Programs), home + "/.local/share/applications");
}

TEST_F(ShellFolders, FollowTheDesktopsOwnFile) {
  folder.Write(".config/user-dirs.dirs",
               "# written by hand\nXDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n"
               "XDG_DOCUMENTS_DIR=\"/srv/papers\"\n");

  EXPECT_EQ(DefaultShellFolder(ShellFolder::Desktop), home + "/Schreibtisch");
  EXPECT_EQ(DefaultShellFolder(ShellFolder::Personal), "/srv/papers");
}

TEST_F(ShellFolders, FollowTheEnvironment) {
  folder.Write("conf/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n");
  const EnvironmentVariable otherConfig("XDG_CONFIG_HOME", home + "/conf");
  const EnvironmentVariable otherData("XDG_DATA_HOME", home + "/data");

  EXPECT_EQ(DefaultShellFolder(ShellFolder::Personal), home + "/Papers");
  EXPECT_EQ(DefaultShellFolder(ShellFolder::Programs), home + "/data/applications");
}

TEST_F(ShellFolders, BearAnOddFile) {
  folder.Write(".config/user-dirs.dirs",
               "XDG_DESKTOP_DIR=\"$HOME\nXDG_DOCUMENTS_DIR=$HOME/x\nnonsense");

  EXPECT_EQ(DefaultShellFolder(ShellFolder::Personal), home + "/Documents");
  DefaultShellFolder(ShellFolder::Desktop);
}

}  // namespace
}  // namespace orrerix
