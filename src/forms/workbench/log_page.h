// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <filesystem>
#include <functional>
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
  // `open` opens a file at a line in the editor.
  using OpenFile = std::function<void(const std::filesystem::path&, int line)>;
  LogPage(WorkbenchHost& host, const LanguageChoice& choice, OpenFile open);

  void Enter() override;
  void UniverseChanged() override;

 private:
  QWidget* MakeBar();
  void Read();
  void ShowChosen();
  void OpenChosen();
  void Copy();
  void Save();

  WorkbenchHost& host_;
  const LanguageChoice& choice_;
  OpenFile open_;
  LogModel model_;
  QSortFilterProxyModel filter_;
  std::vector<std::string> entries_;
  QTableView* table_;
  QPlainTextEdit* entry_;
  QLabel* sums_;
  QPushButton* openFile_;
};

}  // namespace orrerix
