// SPDX-License-Identifier: MIT
#include "platform/application_folder.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(ExecutablePath, IsThisProgram) {
  EXPECT_EQ(ExecutablePath().stem(), "platform_tests");
}

TEST(ApplicationFolder, IsAFolderThatIsThere) {
  EXPECT_TRUE(std::filesystem::is_directory(ApplicationFolder()));
}

}  // namespace
}  // namespace orrerix
