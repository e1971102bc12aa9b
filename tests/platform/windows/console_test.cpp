// SPDX-License-Identifier: MIT
#include "platform/console.h"

#include <string>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(ProgramArguments, AreThoseOfTheSystemsOwnCommandLine) {
  const char* const given[] = {"other"};

  const ProgramArguments arguments(1, given);

  ASSERT_GE(arguments.Count(), 1);
  EXPECT_NE(std::string(arguments.Texts()[0]).find("platform_tests"), std::string::npos);
}

}  // namespace
}  // namespace orrerix
