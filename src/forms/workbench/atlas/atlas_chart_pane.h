// SPDX-License-Identifier: MIT
#pragma once

#include <QComboBox>

#include "forms/workbench/atlas/atlas_chart.h"
#include "forms/workbench/atlas/atlas_model.h"
#include "shell/text_id.h"

namespace orrerix {

// The rows of a table as points, by two of its columns that hold numbers. Rows that lack one of
// them are not there.
class AtlasChartPane : public QWidget {
 public:
  // Both outlive this.
  AtlasChartPane(const AtlasModel& model, const LanguageChoice& choice);

  AtlasChart& Chart() { return *chart_; }

  // Offers the columns of another table. `axes` are the IDs of the two to begin with, as Axes()
  // gives them; those that the table lacks are replaced by the usual ones.
  void OfferColumns(const QString& axes);
  QString Axes() const;

  // Shows the rows that the model shows now.
  void Refresh();

 private:
  QComboBox* AddAxis(const char* name, TextId caption);
  void ChooseAxes(const QString& axes);

  const AtlasModel& model_;
  const LanguageChoice& choice_;
  QComboBox* x_;
  QComboBox* y_;
  AtlasChart* chart_;
};

}  // namespace orrerix
