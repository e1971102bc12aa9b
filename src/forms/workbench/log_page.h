// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <string>
#include <vector>

#include "forms/workbench/log_model.h"
#include "forms/workbench/workbench_host.h"
#include "forms/workbench/workbench_page.h"

namespace orrerix {

// The data log of the universe's import, also of one that was made days ago. It opens at its
// beginning.
class LogPage : public WorkbenchPage {
 public:
  LogPage(WorkbenchHost& host, const LanguageChoice& choice);

  void Enter() override;
  void UniverseChanged() override;

 private:
  QWidget* MakeBar();
  void Read();
  void ShowChosen();
  void Copy();
  void Save();

  WorkbenchHost& host_;
  const LanguageChoice& choice_;
  LogModel model_;
  QSortFilterProxyModel filter_;
  std::vector<std::string> entries_;
  QTableView* table_;
  QPlainTextEdit* entry_;
  QLabel* sums_;
};

}  // namespace orrerix
