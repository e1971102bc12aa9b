// SPDX-License-Identifier: MIT
// Runs the command line as a script does, on the demo game.
#pragma once

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "demo/demo_game.h"
#include "map/control_id.h"
#include "support/pipe.h"
#include "support/temp_folder.h"

namespace orrerix {

struct Answer {
  int ExitCode = -1;
  std::string Output;
  std::string Errors;
  nlohmann::json Json() const { return nlohmann::json::parse(Output); }
};

inline std::string Content(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream content;
  content << stream.rdbuf();
  return content.str();
}

class CommandLine : public ::testing::Test {
 protected:
  // In quotes, and with the system's own separators.
  static std::string Program() {
    return '"' + std::filesystem::absolute(ORRERIX_CLI).make_preferred().string() + '"';
  }

  Answer Run(const std::string& words) {
    const std::filesystem::path errors = folder.Path() / "errors.txt";
    const std::string command = Program() + " " + words + " 2>" + errors.string();
    Answer answer;
    FILE* pipe = OpenPipe(command);
    std::array<char, 4096> buffer{};
    while (const std::size_t read = fread(buffer.data(), 1, buffer.size(), pipe)) {
      answer.Output.append(buffer.data(), read);
    }
    answer.ExitCode = ClosePipe(pipe);
    answer.Errors = Content(errors);
    return answer;
  }

  std::filesystem::path Game() {
    const std::filesystem::path game = folder.Path() / "game";
    WriteDemoGame(game, 5);
    return game;
  }
  std::string Database() const { return "--database " + (folder.Path() / "u.fl").string(); }
  Answer Import(const std::string& more = "") {
    return Run("import --game " + Game().string() + " " + Database() + " " + more);
  }

  // Nickname of an object that a map of nearly all cells shows.
  std::string FirstObject() {
    const nlohmann::json scene = Run("scene --json --zoom 0,0,17,17 " + Database()).Json();
    for (const auto& control : scene["controls"]) {
      if (control["control"] != ObjectName(ControlId::MapIcon)) continue;
      if (control["Picture"] != "Jumpgate" && control["Picture"] != "JumpHole") {
        return control["Tag"];
      }
    }
    return {};
  }

  TempFolder folder;
};

}  // namespace orrerix
