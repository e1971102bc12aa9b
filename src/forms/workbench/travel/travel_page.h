// SPDX-License-Identifier: MIT
#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <span>
#include <vector>

#include "forms/workbench/background_task.h"
#include "forms/workbench/travel/trade_worlds.h"
#include "forms/workbench/travel/travel_fields.h"
#include "forms/workbench/travel/way_leg_model.h"
#include "forms/workbench/workbench_host.h"
#include "forms/workbench/workbench_page.h"

namespace orrerix {

// What pages of travel are built from; all of it outlives them.
struct TravelParts {
  WorkbenchHost& Host;
  const LanguageChoice& Choice;
  QSettings& Settings;
  TradeWorlds& Worlds;
};

// What the pages of ways and of trades have in common: fields at the left, what comes of them at
// the right, and at the bottom the legs of a way that the map can show. Fields that the pages share
// and the widths of columns are remembered.
class TravelPage : public WorkbenchPage {
 public:
  void Enter() override;
  void Leave() override;
  void UniverseChanged() override;

  // Begins the work that the fields ask for, once the lists of the universe are read; cancels what
  // runs.
  void Start();

 protected:
  // `find` is the caption of the button that starts. `key` is that of the page's settings.
  TravelPage(TextId name, TextId find, const char* key, const TravelParts& parts);

  // The work itself.
  virtual void Run() = 0;

  // Drops what the page shows.
  virtual void Clear() = 0;
  virtual void CancelWork() = 0;

  QString Caption(TextId id) const;

  // What the fields say, with the game on the map.
  TravelRequest Request() const;

  // Gives the columns of a table the widths that they had last, else these.
  void RecallWidths(QTableView& table, std::span<const int> widths);

  // A table of rows that are chosen whole.
  QTableView* MakeTable(const char* name, TextId caption, QAbstractItemModel& model);

  void ShowRunning();
  void ShowDone(const QString& state);

  WorkbenchHost& host_;
  const LanguageChoice& choice_;
  QSettings& settings_;
  TradeWorlds& worlds_;
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
  void CopyOfChosen(QString WayLegRow::*text);
  QString WidthsKey(const QTableView& table) const;

  QPushButton* find_;
  QPushButton* cancel_;
  QProgressBar* progress_;
  QLabel* state_;
  const char* key_;
  std::vector<QTableView*> remembered_;  // whose widths are
  bool isInFront_ = false;
  bool choicesAreRead_ = false;
  bool startsWhenRead_ = false;
  BackgroundTask choices_;  // last: it refers to the others
};

}  // namespace orrerix
