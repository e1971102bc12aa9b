// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "forms/workbench/atlas/atlas_model.h"
#include "shell/language.h"

namespace orrerix {

struct AtlasConditions {
  std::vector<AtlasCondition> All;
  QString Error;  // names the first part that is none; empty if there is none of those
};

// The conditions of a text like "price<=5000; name~laser" for a table. Parts that are no condition,
// or whose column the table lacks, are left out.
AtlasConditions ParseConditions(const AtlasTable& table, const QString& text, Language language);

// What stands in the fields below the heads, in the order of the columns.
struct AtlasFieldConditions {
  std::vector<AtlasCondition> All;
  QStringList Errors;  // by column; empty where nothing is wrong
};

// Texts that are no condition on their column are left out.
AtlasFieldConditions ParseFields(const AtlasModel& model, const QStringList& texts,
                                 Language language);

}  // namespace orrerix
