// SPDX-License-Identifier: MIT
#include "platform/folder_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/temp_folder.h"

namespace orrerix {
namespace {

TEST(FolderLock, OneHolderAtATime) {
  TempFolder folder;
  auto first = FolderLock::TryHold(folder.Path());
  ASSERT_TRUE(first.has_value());

  EXPECT_FALSE(FolderLock::TryHold(folder.Path()).has_value());
  first.reset();

  EXPECT_TRUE(FolderLock::TryHold(folder.Path()).has_value());
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path()));
}

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

TEST(FolderLock, AFolderThatIsNotThereIsHeldByNobody) {
  TempFolder folder;

  EXPECT_TRUE(FolderLock::TryHold(folder.Path() / "none").has_value());
}

TEST(FolderLock, ItMovesWithItsOwner) {
  TempFolder folder;
  FolderLock owner;
  {
    auto held = FolderLock::TryHold(folder.Path());
    ASSERT_TRUE(held.has_value());
    owner = std::move(*held);
  }

  EXPECT_FALSE(FolderLock::TryHold(folder.Path()).has_value());
}

}  // namespace
}  // namespace orrerix
