// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <vector>

#include "forms/workbench/background_task.h"
#include "forms/workbench/relations/relation_model.h"
#include "forms/workbench/workbench_host.h"
#include "forms/workbench/workbench_page.h"

namespace orrerix {

// How all factions stand to each other, as a matrix whose heads stay while it is scrolled.
class RelationsPage : public WorkbenchPage {
 public:
  // Both outlive the page.
  RelationsPage(WorkbenchHost& host, const LanguageChoice& choice);

  void Enter() override;
  void UniverseChanged() override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  struct Content {
    std::vector<RelatedFaction> Factions;
    QString Error;
  };
  static Content Read(const std::filesystem::path& universe, const std::string& game,
                      Language language);
  QString Caption(TextId id) const;
  QTableView* MakeMatrix();
  QWidget* MakeLegend();
  void PaintLegend();
  void Show(Content content);
  void Filter();
  void ShowState();

  WorkbenchHost& host_;
  const LanguageChoice& choice_;
  RelationModel model_{choice_};
  QLineEdit* filter_;
  std::vector<std::pair<Attitude, QLabel*>> swatches_;
  QLabel* state_;
  QTableView* matrix_;
  std::size_t count_ = 0;
  bool isRead_ = false;
  BackgroundTask task_;  // last: it refers to the others
};

}  // namespace orrerix
