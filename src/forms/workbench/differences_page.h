// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTextBrowser>
#include <string>
#include <vector>

#include "diff/report.h"
#include "forms/workbench/background_task.h"
#include "forms/workbench/workbench_host.h"
#include "forms/workbench/workbench_page.h"
#include "shell/version.h"

namespace orrerix {

// Compares the universe on the map with an older one: another universe file, or a game folder,
// which is imported for that.
class DifferencesPage : public WorkbenchPage {
 public:
  DifferencesPage(WorkbenchHost& host, const LanguageChoice& choice, AppVersion version);
  ~DifferencesPage() override;

 private:
  struct Comparison {
    UniverseDiff Diff;
    NameBook Names;
    std::vector<MapCell> ChangedCells;
    std::string Old;    // what was compared, as people call it
    std::string Error;  // why there is no answer
  };

  QWidget* MakeChoice();
  QWidget* MakeButtons();
  QString Caption(TextId id) const;
  static Comparison Compare(const std::string& old, const std::filesystem::path& now,
                            AppVersion version, const BackgroundTask::IsCancelled& isCancelled);
  void Start();
  void Show(Comparison comparison);
  void ShowTable(int row);
  Report ReportOf(int row) const;
  void Save();

  WorkbenchHost& host_;
  const LanguageChoice& choice_;
  AppVersion version_;
  Comparison comparison_;
  QLineEdit* old_;
  QPushButton* cancel_;
  QLabel* state_;
  QListWidget* tables_;
  QTextBrowser* report_;
  BackgroundTask task_;
};

}  // namespace orrerix
