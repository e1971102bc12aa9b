// SPDX-License-Identifier: MIT
#include "db/values/text_store.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace orrerix {
namespace {

TEST(TextStore, KeepsATextWhenItsSourceChanges) {
  TextStore store;
  std::string source = "Manhattan";

  const std::string_view kept = store.Keep(source);
  source = "Pittsburg";

  EXPECT_EQ(kept, "Manhattan");
}

TEST(TextStore, LeavesTextsInTheirPlacesWhenMoreComeAndWhenItIsMoved) {
  TextStore store;
  std::vector<std::string_view> kept;
  for (int i = 0; i < 10000; ++i) kept.push_back(store.Keep("text " + std::to_string(i)));

  const TextStore moved = std::move(store);

  for (int i = 0; i < 10000; ++i) EXPECT_EQ(kept[i], "text " + std::to_string(i));
}

TEST(TextStore, GivesAnEmptyTextAPlace) {
  TextStore store;

  EXPECT_TRUE(store.Keep("").empty());
  EXPECT_NE(store.Keep(std::string_view()).data(), nullptr);
}

TEST(TextStore, KeepsANul) {
  TextStore store;
  const std::string text("a\0b", 3);

  EXPECT_EQ(store.Keep(text), text);
}

}  // namespace
}  // namespace orrerix
