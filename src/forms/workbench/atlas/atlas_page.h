// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QTableView>
#include <memory>
#include <optional>

#include "forms/workbench/atlas/atlas_chart_pane.h"
#include "forms/workbench/atlas/atlas_columns.h"
#include "forms/workbench/atlas/atlas_conditions.h"
#include "forms/workbench/atlas/atlas_content.h"
#include "forms/workbench/atlas/atlas_details.h"
#include "forms/workbench/atlas/atlas_fields.h"
#include "forms/workbench/atlas/atlas_model.h"
#include "forms/workbench/atlas/atlas_output.h"
#include "forms/workbench/atlas/atlas_pins.h"
#include "forms/workbench/workbench_host.h"
#include "forms/workbench/workbench_page.h"

namespace orrerix {

// The tables of the atlas: filtered, sorted, compared, as a chart, and with what the game says of a
// row. What is chosen is remembered for each table.
class AtlasPage : public WorkbenchPage {
 public:
  // All of these outlive this.
  AtlasPage(WorkbenchHost& host, const LanguageChoice& choice, QSettings& settings);

  void Enter() override;
  void Leave() override;
  void UniverseChanged() override;

  // Shows a table, by its ID, with the rows that hold a text; at once, or when the page has read
  // the universe.
  void ShowRows(const QString& table, const QString& text);

  AtlasOutput& Output() { return *output_; }

 private:
  QString Caption(TextId id) const;
  QLineEdit* MakeEdit(const char* name, TextId caption);
  QTableView* MakeView(const char* name, TextId caption, QAbstractItemModel& model);
  QWidget* MakeBar();
  QWidget* MakePanes();
  QWidget* MakePinnedPane();
  QWidget* MakeButtons();
  QPushButton* AddButton(QWidget& bar, const char* name, TextId caption);
  void MakeColumnMenus(QPushButton& button);
  void KeepPinsAligned();

  void Show(AtlasContent content);
  void ShowTable(int index);
  void RememberTable();
  void OfferShips();
  AtlasConditions ReadConditions();
  void Filter();
  void ShowSums(const QString& error);
  void ShowChosen();
  void Choose(std::size_t storedRow);
  void PinChosen();
  void PinsChanged();
  QString Key(const char* what) const;

  WorkbenchHost& host_;
  const LanguageChoice& choice_;
  QSettings& settings_;
  AtlasContent content_;
  AtlasModel model_{choice_};
  AtlasPins pins_{model_};
  QListWidget* tables_;
  QLineEdit* filter_;
  QLineEdit* conditions_;
  QComboBox* ships_;
  QLabel* state_;
  QTableView* view_;
  QTableView* pinView_;
  QWidget* pinPane_;
  AtlasChartPane* chart_;
  AtlasDetails* details_;
  std::unique_ptr<AtlasFields> fields_;
  std::unique_ptr<AtlasColumns> columns_;
  std::unique_ptr<AtlasOutput> output_;
  bool isRead_ = false;
  bool isFiltering_ = false;
  std::optional<std::size_t> chosen_;  // the stored row of which there are details
  BackgroundTask task_;                // last: it refers to the others
};

}  // namespace orrerix
