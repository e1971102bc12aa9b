// SPDX-License-Identifier: MIT
#include "platform/folder_lock.h"

#include <gtest/gtest.h>

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
