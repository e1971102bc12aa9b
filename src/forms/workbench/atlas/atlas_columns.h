// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>
#include <QSettings>
#include <QTableView>
#include <vector>

#include "forms/workbench/atlas/atlas_model.h"
#include "shell/text_id.h"

namespace orrerix {

// Which columns of a table of the atlas are shown, how wide they are and by which it is sorted. All
// of this is remembered for each table by the IDs of its columns.
class AtlasColumns {
 public:
  // All of these outlive this.
  AtlasColumns(QTableView& view, AtlasModel& model, QSettings& settings,
               const LanguageChoice& choice);

  // Gives the columns of the model's table what was remembered of them.
  void Recall();
  void Remember() const;

  // Makes a menu in which columns are switched on and off. `column` is the one that was pointed at;
  // below 0 there is none.
  void Fill(QMenu& menu, int column);

  // The columns that are shown.
  std::vector<std::size_t> Shown() const;

 private:
  QString Key(const char* what) const;
  void RecallWidths();
  void RecallSorting();
  void ShowAll();

  QTableView& view_;
  AtlasModel& model_;
  QSettings& settings_;
  const LanguageChoice& choice_;
};

}  // namespace orrerix
