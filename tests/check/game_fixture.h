// SPDX-License-Identifier: MIT
// A game of a few lines, checked.
#pragma once

#include <filesystem>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include "check/check.h"
#include "support/temp_folder.h"

namespace orrerix::check {

class CheckedGameTest : public ::testing::Test {
 protected:
  // Writes a file below DATA and names it in the configuration. A line end at the start of the
  // text is left out, so that its next line is line 1.
  void Data(const std::string& role, std::string_view text) {
    const std::string name = fmt::format("{}{}.ini", role, ++files_);
    configuration_ += fmt::format("{} = {}\n", role, name);
    File("DATA/" + name, text);
  }

  // Writes a file of the game folder.
  void File(const std::string& path, std::string_view text) {
    if (text.starts_with('\n')) text.remove_prefix(1);
    folder.Write("game/" + path, text);
  }

  void BaseFile(const std::string& path, std::string_view text) {
    if (text.starts_with('\n')) text.remove_prefix(1);
    folder.Write("base/" + path, text);
  }

  // A line of [Data].
  void Configure(std::string_view line) { configuration_ += std::string(line) + '\n'; }

  // A library of the game, in the order of the calls.
  void Library(const std::string& name) { libraries_ += fmt::format("DLL = {}\n", name); }

  std::filesystem::path Game() const { return folder.Path() / "game"; }
  std::filesystem::path Base() const { return folder.Path() / "base"; }

  void WriteConfiguration() {
    folder.Write("game/EXE/freelancer.ini", "[Freelancer]\ndata path = ..\\data\n[Resources]\n" +
                                                libraries_ + "[Data]\n" + configuration_);
  }

  CheckAnswer Run(const std::set<std::string>& only = {}) {
    WriteConfiguration();
    CheckOptions options;
    options.Game = Game();
    options.Only = only;
    if (isWhole) options.Base = Game();
    return RunCheck(options);
  }

  // What a rule finds: "file:line key" each, the file without its folders and its number.
  std::vector<std::string> Found(const std::string& rule) {
    std::vector<std::string> found;
    for (const Finding& finding : Run({rule}).Findings) {
      EXPECT_EQ(finding.Rule, rule);
      const std::string key = finding.Key.empty() ? "-" : finding.Key;
      found.push_back(fmt::format("{}:{} {}", ShortName(finding.File), finding.Line, key));
    }
    return found;
  }

  std::vector<std::string> Messages(const std::string& rule) {
    std::vector<std::string> messages;
    for (const Finding& finding : Run({rule}).Findings) messages.push_back(finding.Message);
    return messages;
  }

  // A universe of one system whose file holds the text.
  void OneSystem(std::string_view text) {
    Data("universe", "[System]\nnickname = Li01\nfile = systems\\li01.ini\nstrid_name = 1\n");
    File("DATA/UNIVERSE/SYSTEMS/li01.ini", text);
  }

  bool isWhole = false;  // checked with itself as base
  TempFolder folder;

 private:
  static std::string ShortName(const std::string& path) {
    std::string name = std::filesystem::path(path).stem().string();
    while (name.size() > 4 && name.back() >= '0' && name.back() <= '9' &&
           path.find("SYSTEMS") == std::string::npos) {
      name.pop_back();
    }
    return name;
  }

  int files_ = 0;
  std::string configuration_;
  std::string libraries_;
};

using ::testing::ElementsAre;
using ::testing::IsEmpty;

}  // namespace orrerix::check
