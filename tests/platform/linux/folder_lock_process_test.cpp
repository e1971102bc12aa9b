// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/folder_lock.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

TEST(FolderLock, AProcessThatDiesLetsGo) {
  TempFolder folder;
  const pid_t child = fork();
  if (child == 0) {
    const auto held = FolderLock::TryHold(folder.Path());
    _exit(held ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);

  EXPECT_EQ(WEXITSTATUS(status), 0);
  EXPECT_TRUE(FolderLock::TryHold(folder.Path()).has_value());
}

}  // namespace
}  // namespace orrerix
