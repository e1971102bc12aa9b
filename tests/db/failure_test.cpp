// SPDX-License-Identifier: MIT
#include "db/failure.h"

#include <gtest/gtest.h>

namespace orrerix {
namespace {

struct MessageCase {
  int Number;
  std::string_view Text;
};

class StandardMessageOf : public ::testing::TestWithParam<MessageCase> {};

TEST_P(StandardMessageOf, ANumber) {
  EXPECT_EQ(StandardMessage(GetParam().Number), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, StandardMessageOf,
    ::testing::Values(MessageCase{5, "Invalid procedure call or argument"},
                      MessageCase{6, "Overflow"}, MessageCase{7, "Out of memory"},
                      MessageCase{9, "Subscript out of range"}, MessageCase{11, "Division by zero"},
                      MessageCase{53, "File not found"}, MessageCase{75, "Path/File access error"},
                      MessageCase{93, "Invalid pattern string"},
                      MessageCase{94, "Invalid use of Null"},
                      MessageCase{3022, "Application-defined or object-defined error"},
                      MessageCase{-1, "Application-defined or object-defined error"}));

TEST(Failure, OfTheLanguageDescribesItselfByTheStandardMessage) {
  const Failure failure = RuntimeFailure(11);

  EXPECT_EQ(failure.Number, 11);
  EXPECT_EQ(failure.Description, "Division by zero");
  EXPECT_EQ(failure.Source, "Orrerix");
}

TEST(Failure, OfTheEngineNamesTheEngine) {
  EXPECT_EQ(EngineFailure(3022, "x").Source, "Database engine");
  EXPECT_EQ(EngineFailure(3022, "x").Description, "x");
}

}  // namespace
}  // namespace orrerix
