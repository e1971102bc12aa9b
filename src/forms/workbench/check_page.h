// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "forms/workbench/background_task.h"
#include "forms/workbench/finding_model.h"
#include "forms/workbench/workbench_host.h"
#include "forms/workbench/workbench_page.h"
#include "shell/game_files_watch.h"

namespace orrerix {

// Checks the game folder that the map shows, and lists the findings. A double click opens the file
// of a finding at its line.
class CheckPage : public WorkbenchPage {
 public:
  // `open` opens a file at a line in the user's editor. All of these outlive the page.
  using OpenFile = std::function<void(const std::filesystem::path&, int line)>;
  CheckPage(WorkbenchHost& host, const LanguageChoice& choice, OpenFile open);

  void Enter() override;
  void UniverseChanged() override;

  // Starts a check of the game folder; cancels one that runs.
  void Check();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  struct Outcome {
    check::CheckAnswer Answer;
    std::string Error;  // why there is no answer
  };

  QWidget* MakeBar();
  QWidget* MakeFilterBar();
  QWidget* MakeButtons();
  QString Caption(TextId id) const;
  void ShowOutcome(Outcome outcome);
  void ShowSums();
  void ShowExplanation();
  const check::Finding* Chosen() const;
  void OpenChosen();
  void ShowRunning(bool running);
  void ShowChosenOnMap();
  void CopyChosen();
  void Export();
  void Watch(bool on);

  WorkbenchHost& host_;
  const LanguageChoice& choice_;
  OpenFile open_;
  FindingModel findings_;
  FindingFilter filter_;
  check::CheckAnswer answer_;
  std::string game_;  // that was checked
  QPushButton* check_;
  QPushButton* cancel_;
  QLabel* state_;
  QProgressBar* progress_;
  QTreeView* tree_;
  QPlainTextEdit* explanation_;
  QPushButton* onMap_;
  QCheckBox* again_;
  QTimer watchTimer_;
  std::unique_ptr<GameFilesWatch> watch_;
  BackgroundTask task_;  // last: it refers to the others
};

}  // namespace orrerix
