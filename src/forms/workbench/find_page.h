// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <functional>
#include <memory>
#include <string>

#include "forms/workbench/background_task.h"
#include "forms/workbench/workbench_host.h"
#include "forms/workbench/workbench_page.h"
#include "space/find_book.h"

namespace orrerix {

// Finds anything of the universe while a name is typed. The map follows the chosen row; Enter or a
// double click leads on: to a station's window, or to the row of the atlas.
class FindPage : public WorkbenchPage {
 public:
  struct Actions {
    std::function<void(MapCell)> ShowCell;  // shows a system on the map
    // Shows a row of the atlas: the table's ID, the name.
    std::function<void(const std::string& table, const std::string& name)> ShowInAtlas;
  };

  // Host and choice outlive this.
  FindPage(WorkbenchHost& host, const LanguageChoice& choice, Actions actions);

  void Enter() override;
  void UniverseChanged() override;

  // Takes the keyboard, with a text to begin with.
  void Begin(const QString& text);

 private:
  QString Caption(TextId id) const;
  QString KindOf(const FoundThing& thing) const;
  void Find();
  void Follow();
  void GoOn();
  const FoundThing* Chosen() const;
  bool eventFilter(QObject* watched, QEvent* event) override;

  WorkbenchHost& host_;
  const LanguageChoice& choice_;
  Actions actions_;
  std::shared_ptr<const FindBook> book_;
  FoundRows found_;
  bool isRead_ = false;
  QLineEdit* text_;
  QLabel* sums_;
  QTreeWidget* rows_;
  QLabel* infoText_;
  BackgroundTask task_;
};

}  // namespace orrerix
