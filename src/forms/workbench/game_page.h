// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QSettings>
#include <functional>

#include "forms/workbench/workbench_host.h"
#include "forms/workbench/workbench_page.h"

namespace orrerix {

// Which game the map shows: import it again, watch its files, open another one.
class GamePage : public WorkbenchPage {
 public:
  // `settings` keeps the games that were opened.
  GamePage(WorkbenchHost& host, QSettings& settings, const LanguageChoice& choice);

  // Called with the player's choice between light and dark panels.
  std::function<void(bool)> OnLightPanels;

  void Enter() override;
  void UniverseChanged() override;

  // One line of news: how an import went, or what hinders one.
  void ShowState(const QString& text);

 private:
  QString Caption(TextId id) const;
  void OpenOther();
  void OpenRecent();
  void Remember(const QString& folder);

  WorkbenchHost& host_;
  QSettings& settings_;
  const LanguageChoice& choice_;
  QLabel* game_;
  QLabel* file_;
  QLabel* state_;
  QListWidget* recent_;
};

}  // namespace orrerix
