// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <filesystem>
#include <functional>
#include <optional>

#include "db/engine.h"
#include "db/working_copy.h"
#include "forms/form_parts.h"
#include "forms/map/map_controller.h"
#include "forms/map/map_host.h"
#include "forms/map/map_screen.h"
#include "forms/map/news_controller.h"
#include "forms/map/search_controller.h"
#include "forms/start/import_screen.h"
#include "forms/start/window_host.h"
#include "forms/station/station_windows.h"
#include "online/news.h"
#include "platform/folder_lock.h"

namespace orrerix {

// The main form. It shows one of three screens, decided anew in every Form_Resize: first run,
// importing, or the map.
class OrrerixMain : public QWidget, private MapHost {
 public:
  OrrerixMain(const FormParts& parts, Settings& settings, LanguageFile& language,
              const MemoryStatus& startMemory, JetVersionOption format);
  ~OrrerixMain() override;

  // Finds the folders, tests the universe file, and asks for captions and the maximised state,
  // unless the user cancels a failed step. False if the universe file is in use and the user would
  // rather leave the program.
  bool FormLoad();

  // Shows the form as FormLoad left it: over the whole screen unless it was cancelled.
  void ShowLoaded();

  // Shows it over the whole screen.
  void ShowMaximised();

  // The one redraw of the form; whoever changes what the map shows calls it.
  void FormResize() override;

  // Prints the map as it is shown, on white paper: the form is a square of the screen's height
  // meanwhile. Behind a failure that the user cancels it stays one, drawn for print.
  void PrintTheMap();

  bool Importing() const { return importing_; }

  // Called when the user closes the form and no import is running any more.
  std::function<void()> OnQueryUnload;

  // Asked once before the first map, unless the universe's warning is off. If it answers false the
  // program is over and no map is drawn.
  std::function<bool()> OnFirstMap;

  // A later version is there; called once, when the form has the focus.
  std::function<void(const News&)> OnUpdate;

  // Takes a news file over: labels in the panel, and the version that is the latest.
  void InfoBoxLabelFillup(const std::string& text);

  // Opens the link of a news label with the game's sound for that.
  void OpenNewsLink(int index) override;

  std::filesystem::path UniverseFile() const { return saveFolder_ / "Orrerix.fl"; }
  GameFolder Game() const override;
  MapScreen& Map() { return map_; }
  MapController& Play() { return play_; }
  const StationWindows& Stations() const { return stations_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void LoadFormTXT() override;
  Universe OpenUniverse(Routine& routine) override;
  bool SearchPanelOpen() const override { return search_.Visible(); }
  void ShowStation(const std::string& nickname, const std::string& picture) override;
  void UseTool(int index) override;

  void OpenLogoPage(bool firstHalf) override;

  void QueueFocus();
  void FormGotFocus();
  std::string GameFolderText() const;
  void LookForGame();
  void ReplaceStarMap(Routine& routine, const std::filesystem::path& picture);
  bool ExamineUniverseFile(Routine& routine);
  bool AsksAgain();
  bool PrepareSaveFolder();
  void Command1Click();
  void RunImport();
  void PlaceForImport();
  void ShowImportScreen();
  void ShowScreen();
  void ShowMap();
  void KeepOnScreen();
  void SetOuterGeometry(const QRect& outer);

  const FormParts& parts_;
  Settings& settings_;
  LanguageFile& language_;
  const MemoryStatus& startMemory_;
  JetVersionOption format_;
  std::filesystem::path saveFolder_;
  WorkingCopy copy_;

  bool loaded_ = false;
  bool isMaximised_ = false;  // as FormLoad wants it
  bool importing_ = false;
  bool importRuns_ = false;         // its routine is on the stack
  std::optional<FolderLock> lock_;  // of the save folder, while it runs
  bool lookQueued_ = false;         // for the game, from the event loop
  bool complaining_ = false;        // that the game is missing
  bool mapShown_ = false;
  bool warning_ = false;  // the question before the first map is open, or was answered by an end
  bool redrawing_ = false;
  bool redrawWanted_ = false;  // while another one was running
  bool updateNoticeShown_ = false;
  News news_;
  int printSide_ = 0;  // twips of the form's sides while it prints; else 0

  ImportScreen* importScreen_;
  MapScreen map_;
  MapController play_;
  SearchController search_;
  NewsController newsPlay_;
  StationWindows stations_;
  WindowHost host_;
};

}  // namespace orrerix
