// SPDX-License-Identifier: MIT
// The tools beside the map: their window, imports in the background, and the watch on the game.
#pragma once

#include <QSettings>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "forms/form_parts.h"
#include "forms/workbench/background_import.h"
#include "forms/workbench/game_page.h"
#include "forms/workbench/travel/trade_worlds.h"
#include "forms/workbench/workbench.h"
#include "forms/workbench/workbench_host.h"
#include "shell/game_files_watch.h"

namespace orrerix {

class AtlasPage;
class GoodsPage;
class TradesPage;
class WayPage;

class Tools {
 public:
  // All of these outlive this.
  Tools(WorkbenchHost& host, const FormParts& parts, JetVersionOption format);
  ~Tools();
  Tools(const Tools&) = delete;
  Tools& operator=(const Tools&) = delete;

  // Called when a universe that was imported in the background has taken the place of the old one.
  std::function<void()> OnReplaced;

  // Called with the answer whether the game's files have changed since they were imported.
  std::function<void(bool)> OnChangeSeen;

  // Makes a page of what this does not know, once the window is first wanted. It stands after the
  // atlas.
  using MakePage = std::function<std::unique_ptr<WorkbenchPage>()>;
  void AddPage(MakePage make) { morePages_.push_back(std::move(make)); }

  void Open();
  void ShowPage(TextId page) { Window().Open(page); }
  void ShowKeys();

  // Open the window with the trades from a place, or the way to it from where the player is.
  void ShowTradesFrom(const std::string& place);
  void ShowWayTo(const std::string& place);

  // Opens the window with what commodities bring that are bought at a place.
  void ShowGoodsFrom(const std::string& place);

  // Opens the window with the commodities whose name holds a text.
  void FindGood(const std::string& text);

  // Opens the window with a table of the atlas, by its ID, and the rows that hold a text.
  void ShowInAtlas(const std::string& table, const std::string& text);

  // Imports the shown game again, while the map stays.
  void ImportAgain();

  // Follows changes of the game's files; each is imported at once.
  void WatchGame(bool on);

  // A universe is on the map, or another one than before.
  void UniverseShown();

  // A line on the page of the game.
  void ShowState(const QString& text);

  // What is remembered from run to run.
  QSettings& Remembered() { return settings_; }

 private:
  Workbench& Window();
  void FinishImport(const ImportOutcome& outcome);
  void LookForChanges();
  void OpenInEditor(const std::filesystem::path& file, int line);

  WorkbenchHost& host_;
  const FormParts& parts_;
  JetVersionOption format_;
  QSettings settings_;
  TradeWorlds worlds_;
  std::vector<MakePage> morePages_;
  std::unique_ptr<Workbench> window_;  // made when it is first wanted
  AtlasPage* atlasPage_ = nullptr;
  GoodsPage* goodsPage_ = nullptr;
  TradesPage* tradesPage_ = nullptr;
  WayPage* wayPage_ = nullptr;
  GamePage* gamePage_ = nullptr;
  QTimer watchTimer_;
  std::unique_ptr<GameFilesWatch> watch_;
  bool importsAgain_ = false;  // files changed while an import ran
  BackgroundImport import_;
  BackgroundTask stamp_;
};

}  // namespace orrerix
