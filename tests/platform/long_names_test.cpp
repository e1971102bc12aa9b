// SPDX-License-Identifier: MIT
#include "platform/long_names.h"

#include <gtest/gtest.h>

#include "platform/native_registry.h"
#include "platform/path_text.h"
#include "support/temp_folder.h"

namespace orrerix {
namespace {

TEST(LongNames, AreThoseThatPeopleGave) {
  const TempFolder folder;
  folder.Write("Microsoft Games Freelancer/x", "");
  const std::filesystem::path path = folder.Path() / "Microsoft Games Freelancer";

  EXPECT_EQ(LongNames(path).filename(), "Microsoft Games Freelancer");
  const auto real = NativeRegistry()->RealPath(TextOf(path));
  if (real) {
    EXPECT_EQ(LongNames(PathOf(*real)).filename(), "Microsoft Games Freelancer");
  }
}

TEST(LongNames, LeaveAPathThatLeadsNowhere) {
  const TempFolder folder;

  EXPECT_EQ(LongNames(folder.Path() / "none"), folder.Path() / "none");
  EXPECT_EQ(LongNames(""), "");
}

}  // namespace
}  // namespace orrerix
