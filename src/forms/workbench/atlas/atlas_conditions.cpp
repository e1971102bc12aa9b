// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_conditions.h"

#include <QStringList>

#include "shell/language_texts.h"

namespace orrerix {

AtlasConditions ParseConditions(const AtlasTable& table, const QString& text, Language language) {
  AtlasConditions conditions;
  const auto name = [&](TextId error, const std::string& part) {
    if (!conditions.Error.isEmpty()) return;
    conditions.Error = QString::fromStdString(FormatIn(language, error, part));
  };
  for (const QString& piece : text.split(';')) {
    const std::string part = piece.trimmed().toStdString();
    if (part.empty()) continue;
    const auto filter = ParseFilter(part);
    const auto column = filter ? table.Find(filter->Column) : std::nullopt;
    if (!filter) {
      name(TextId::AtlasWrongCondition, part);
    } else if (!column) {
      name(TextId::AtlasNoColumn, filter->Column);
    } else {
      conditions.All.push_back({*column, *filter});
    }
  }
  return conditions;
}

}  // namespace orrerix
