// SPDX-License-Identifier: MIT
// The window of the tools beside the map.
#pragma once

#include <QListWidget>
#include <QSettings>
#include <QStackedWidget>
#include <QWidget>
#include <memory>
#include <vector>

#include "forms/workbench/workbench_page.h"

namespace orrerix {

// Pages with a list of them at the left. It comes back with the size, the page and the split that
// it had when it was closed.
class Workbench : public QWidget {
 public:
  // `settings` and `choice`, the language in use, outlive this.
  Workbench(QSettings& settings, const LanguageChoice& choice);
  ~Workbench() override;

  // Adds a page at the end. The first one is shown until another is chosen.
  void Add(std::unique_ptr<WorkbenchPage> page);

  // Shows the window with the page it had last, or with the one of this name.
  void Open();
  void Open(TextId page);

  void UniverseChanged();

  // Lists the keys of the whole program.
  void ShowKeys();

  // Dark letters on light panels, or the other way round, in this window. Remembered.
  void UseLightPanels(bool on);

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ColorPanels(bool light);
  void Choose(int row);
  void Bring(int row);
  void LeavePage();

  QSettings& settings_;
  const LanguageChoice& choice_;
  QListWidget* list_;
  QStackedWidget* stack_;
  std::vector<WorkbenchPage*> pages_;  // owned by the stack
  WorkbenchPage* front_ = nullptr;
};

}  // namespace orrerix
