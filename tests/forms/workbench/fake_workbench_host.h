// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "forms/workbench/workbench_host.h"

namespace orrerix {

// A main form that remembers what the workbench asked of it.
class FakeWorkbenchHost : public WorkbenchHost {
 public:
  FakeWorkbenchHost(ErrorLog& log, std::filesystem::path folder)
      : log_(log), folder_(std::move(folder)) {}

  std::string GameText() const override { return Game; }
  std::filesystem::path UniverseFile() const override { return folder_ / "Orrerix.fl"; }
  Universe OpenUniverse(Routine&) override { return {log_, none_}; }
  bool ShowOnMap(const std::string& nickname) override {
    Shown.push_back(nickname);
    return nickname != "nowhere";
  }
  bool ShowWay(const std::vector<ShownLeg>& legs) override {
    Way = legs;
    return HasWayOnMap;
  }
  void HideWay() override { Way.clear(); }
  std::string StartPlace() override { return Start; }
  void ImportAgain() override { ++Imports; }
  void OpenGame(const std::string& folder) override { Opened.push_back(folder); }
  void WatchGame(bool on) override { Watches = on; }
  void MarkCells(const std::vector<MapCell>& cells) override { Marked = cells; }

  std::string Game = "/games/none";
  std::string Start;
  std::vector<std::string> Shown;
  std::vector<ShownLeg> Way;
  bool HasWayOnMap = true;
  std::vector<std::string> Opened;
  int Imports = 0;
  bool Watches = false;
  std::vector<MapCell> Marked;

 private:
  ErrorLog& log_;
  Database none_;
  std::filesystem::path folder_;
};

}  // namespace orrerix
