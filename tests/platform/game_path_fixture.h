// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "platform/game_path.h"
#include "support/temp_folder.h"

namespace orrerix {

// A game folder to which a test adds files that tell their names.
class GamePathFixture : public ::testing::Test {
 protected:
  // Writes a file that holds its own name.
  void Put(const std::string& name) { folder.Write(name, name); }

  // The file found at a path of the game's kind, told by what it holds. It is also the one opened.
  std::string Found(std::string_view path) {
    const std::string whole = game.Text() + std::string(path);
    const auto file = game.FindFile(whole);
    std::string name = "(none)";
    if (file) std::getline(std::ifstream(*file), name);
    auto stream = game.OpenFile(whole);
    std::string opened = "(none)";
    if (stream) std::getline(*stream, opened);
    EXPECT_EQ(opened, name) << path;
    return name;
  }

  TempFolder folder;
  GameFolder game{folder.Path().string()};
};

}  // namespace orrerix
