// SPDX-License-Identifier: MIT
#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>

#include "forms/workbench/background_task.h"
#include "forms/workbench/travel_fields.h"
#include "forms/workbench/way_leg_model.h"
#include "forms/workbench/workbench_host.h"
#include "forms/workbench/workbench_page.h"

namespace orrerix {

// What the pages of ways and of trades have in common: fields at the left, what comes of them at
// the right, and at the bottom the legs of a way that the map can show.
class TravelPage : public WorkbenchPage {
 public:
  void Enter() override;
  void UniverseChanged() override;

  // Begins the work that the fields ask for; cancels what runs.
  virtual void Start() = 0;

 protected:
  // `find` is the caption of the button that starts. Both references outlive the page.
  TravelPage(TextId name, TextId find, WorkbenchHost& host, const LanguageChoice& choice);

  // Drops what the page shows.
  virtual void Clear() = 0;
  virtual void CancelWork() = 0;

  QString Caption(TextId id) const;

  // What the fields say, with the game on the map.
  TravelRequest Request() const;

  // A table of rows that are chosen whole.
  QTableView* MakeTable(const char* name, TextId caption, QAbstractItemModel& model);

  void ShowRunning();
  void ShowDone(const QString& state);

  WorkbenchHost& host_;
  const LanguageChoice& choice_;
  TravelFields* fields_;
  WayLegModel legs_;
  QTableView* legTable_;
  QVBoxLayout* results_;  // below the buttons
  QWidget* mapButtons_;

 private:
  QWidget* MakeFields(TextId find);
  QWidget* MakeBar();
  void MakeMapButtons();
  void ReadChoices();
  void ShowOnMap();
  void CopyCoordinates();

  QPushButton* find_;
  QPushButton* cancel_;
  QProgressBar* progress_;
  QLabel* state_;
  bool choicesAreRead_ = false;
  BackgroundTask choices_;  // last: it refers to the others
};

}  // namespace orrerix
