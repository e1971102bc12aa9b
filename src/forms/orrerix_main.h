// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>

#include "db/engine/engine.h"
#include "db/engine/working_copy.h"
#include "forms/form_parts.h"
#include "forms/import_session.h"
#include "forms/layers/map_actions.h"
#include "forms/layers/map_space.h"
#include "forms/map/map_controller.h"
#include "forms/map/map_host.h"
#include "forms/map/map_marks.h"
#include "forms/map/map_moves.h"
#include "forms/map/map_screen.h"
#include "forms/map/map_way.h"
#include "forms/map/news_controller.h"
#include "forms/map/search_controller.h"
#include "forms/map/summary_view.h"
#include "forms/map/tools_entry.h"
#include "forms/reentry.h"
#include "forms/start/import_screen.h"
#include "forms/station/station_info.h"
#include "forms/workbench/tools.h"
#include "online/news.h"
#include "shell/startup.h"

namespace orrerix {

class BookmarksPage;
class FindPage;
class LayersPage;

// The main form. It shows one of three screens, chosen by every redraw: first run, importing,
// or the map.
class OrrerixMain : public QWidget, public WorkbenchHost, private MapHost {
 public:
  OrrerixMain(const FormParts& parts, Settings& settings, LanguageFile& language,
              const MemoryStatus& startMemory, JetVersionOption format);
  ~OrrerixMain() override;

  // Finds the folders, tests the universe file, and asks for captions and the maximised state,
  // unless the user cancels a failed step. Nothing is laid out before. False if the universe file
  // is in use and the user would rather leave the program.
  bool Load();

  // Shows the form as Load left it: over the whole screen unless it was cancelled.
  void ShowLoaded();

  // Shows it over the whole screen.
  void ShowMaximised();

  // The one redraw of the form; everything that changes what the map shows calls it.
  void Redraw() override;

  // Prints the map as it is shown, on white paper, once the user has chosen a printer: the form is
  // a square of the screen's height meanwhile. After a failure that the user cancels it stays one,
  // drawn for print.
  void PrintTheMap();

  // Also true after an import that was given up.
  bool Importing() const { return phase_ == Phase::Importing || phase_ == Phase::GivenUp; }

  // Called when the user closes the form and no import is running any more.
  std::function<void()> OnClosed;

  // Asked once before the first map, unless the universe's warning is off. If it answers false the
  // program is over and no map is drawn.
  std::function<bool()> OnFirstMap = [] { return true; };

  // A later version is there; called once, when the form has the focus.
  std::function<void(const News&)> OnUpdate;

  // Takes a news file over: labels in the panel, and the version that is the latest.
  void ShowNews(const std::string& text);

  // Opens the link of a news label with the game's sound for that.
  void OpenNewsLink(int index) override;

  // What the workbench asks for; see there.
  std::string GameText() const override { return GameFolderText(); }
  bool ShowOnMap(const std::string& nickname) override;
  void ImportAgain() override;
  void OpenGame(const std::string& folder) override;
  void MarkCells(const std::vector<MapCell>& cells) override { marks_->Mark(cells); }
  bool ShowWay(const std::vector<ShownLeg>& legs) override;
  void HideWay() override { way_->Hide(); }
  std::string StartPlace() override;
  void WatchGame(bool on) override { tools_.WatchGame(on); }
  std::filesystem::path UniverseFile() const override { return UniverseFileIn(saveFolder_); }
  GameFolder Game() const override;
  Tools& MapTools() { return tools_; }
  MapScreen& Map() { return map_; }
  MapController& Controller() { return mapController_; }
  MapSpace& Layers() { return space_; }
  const StationWindows& Stations() const { return stations_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // What the form is about. Phase and universe file together decide which screen it shows.
  enum class Phase {
    Loading,    // before Load has done its work: nothing is laid out
    FirstRun,   // a game folder is looked for
    Preparing,  // of an import: questions about the save folder may be open
    Importing,
    GivenUp,  // an import that the user cancelled: its screen stays until the program is closed
    Warning,  // the question before the first map is open, or was answered by an end
    Map,
    Printing  // the form is a square of the screen's height
  };

  void ReadCaptions() override;
  Universe OpenUniverse(Routine& routine) override;
  bool SearchPanelOpen() const override { return search_.Visible(); }
  void ShowStation(const std::string& nickname, const std::string& picture) override;
  void UseTool(int index) override;

  void OpenLogoPage(bool firstHalf) override;

  void TellThatThereIsNoPrinter();
  void ShowSummary();
  void FollowSummary(const SummaryLine& line);
  void MakeTools();
  void ReadSpace() { space_.Read(UniverseFile(), GameText()); }
  void GoThroughGate(const Control& icon);
  void MakePages();
  void MakeKeys();
  void ShowCell(MapCell cell);
  void ShowBookmark(const Bookmark& mark);
  void FindAnything();
  void AddBookmark();
  void CopyCoordinates();
  void SaveMapPicture();
  void RememberView();
  void RecallView();

  void QueueFocus();
  void GotFocus();
  std::string GameFolderText() const;
  void LookForGame();
  void ReplaceStarMap(Routine& routine, const std::filesystem::path& picture);
  bool ExamineUniverseFile(Routine& routine);
  bool AsksAgain();
  std::optional<FolderLock> LockSaveFolder();
  void StartImport();
  void RunImport(FolderLock lock);
  void PlaceForImport();
  void ShowImportScreen();
  void ShowScreen();
  void ShowMap();
  bool AskBeforeFirstMap();
  QSize DrawnSize() const;
  void KeepOnScreen();
  void SetOuterGeometry(const QRect& outer);

  const FormParts& parts_;
  Settings& settings_;
  LanguageFile& language_;
  const MemoryStatus& startMemory_;
  JetVersionOption format_;
  std::filesystem::path startFolder_;  // the save folder that a start finds
  std::filesystem::path saveFolder_;   // of the universe that is shown
  WorkingCopy copy_;

  Phase phase_ = Phase::Loading;
  RepeatableStep redraw_;
  QTimer lookForGame_;  // from the event loop
  SingleMessage gameMissing_;
  std::optional<ImportSession> import_;  // while it is on the stack
  News news_;

  ImportScreen* importScreen_;
  MapScreen map_;
  MapController mapController_;
  SearchController search_;
  NewsController newsController_;
  StationWindows stations_;
  Tools tools_;
  MapSpace space_;
  MapActions actions_;
  MapMoves moves_;
  ToolsEntry toolsEntry_;
  MapNotice changeNotice_;
  MapMarks* marks_;
  MapWay* way_;
  SummaryView* summary_;
  LayersPage* layersPage_ = nullptr;  // these are made with the tools' window
  FindPage* findPage_ = nullptr;
  BookmarksPage* bookmarksPage_ = nullptr;
  std::string lastStation_;  // that was opened, by its nickname
};

}  // namespace orrerix
