// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <filesystem>
#include <functional>

#include "db/engine.h"
#include "db/working_copy.h"
#include "forms/form_parts.h"
#include "forms/import_screen.h"
#include "forms/map_screen.h"
#include "forms/window_host.h"

namespace orrerix {

// The main form. It shows one of three screens, decided anew in every Form_Resize: first run,
// importing, or the map.
class OrrerixMain : public QWidget {
 public:
  OrrerixMain(const FormParts& parts, Settings& settings, Language& language,
              const MemoryStatus& startMemory, JetVersionOption format);
  ~OrrerixMain() override;

  // Finds the folders, tests the universe file, and asks for the maximised state.
  void FormLoad();

  // Shows it over the whole screen.
  void ShowMaximised();

  // The one redraw of the form; whoever changes what the map shows calls it.
  void FormResize();

  bool Importing() const { return importing_; }

  // Called when the user closes the form and no import is running any more.
  std::function<void()> OnQueryUnload;

  // Asked for once before the first map; the program's own warnings stand here.
  std::function<void()> OnFirstMap;

  MapScreen& Map() { return map_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void LoadFormTXT();
  std::filesystem::path UniverseFile() const { return saveFolder_ / "Orrerix.fl"; }
  std::string GameFolderText() const;
  void LookForGame();
  void Command1Click();
  void RunImport();
  void PlaceForImport();
  void ShowImportScreen();
  void ShowMap();

  const FormParts& parts_;
  Settings& settings_;
  Language& language_;
  const MemoryStatus& startMemory_;
  JetVersionOption format_;
  std::filesystem::path saveFolder_;
  WorkingCopy copy_;

  bool loaded_ = false;
  bool importing_ = false;
  bool importRuns_ = false;   // its routine is on the stack
  bool lookQueued_ = false;   // for the game, from the event loop
  bool complaining_ = false;  // that the game is missing
  bool mapShown_ = false;

  ImportScreen* importScreen_;
  MapScreen map_;
  WindowHost host_;
};

}  // namespace orrerix
