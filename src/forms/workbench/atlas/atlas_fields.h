// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>
#include <QStringList>

#include "forms/workbench/atlas/atlas_conditions.h"
#include "forms/workbench/atlas/atlas_model.h"
#include "forms/workbench/atlas/filter_header.h"
#include "shell/text_id.h"

namespace orrerix {

// The fields below the heads of a table of the atlas: one for each column, remembered for each
// table by the IDs of its columns.
class AtlasFields {
 public:
  // All of these outlive this.
  AtlasFields(FilterHeader& header, const AtlasModel& model, QSettings& settings,
              const LanguageChoice& choice);

  // Gives the columns of the model's table empty fields.
  void Offer();

  // Fills them with what was remembered.
  void Recall();
  void Remember() const;

  // Takes the conditions of all fields, and marks those that are wrong.
  AtlasFieldConditions Read();

 private:
  QString Key() const;
  QString IdOf(int column) const;

  FilterHeader& header_;
  const AtlasModel& model_;
  QSettings& settings_;
  const LanguageChoice& choice_;
};

}  // namespace orrerix
