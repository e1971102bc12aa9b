// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_conditions.h"

#include <algorithm>

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

AtlasFieldConditions ParseFields(const AtlasModel& model, const QStringList& texts,
                                 Language language) {
  AtlasFieldConditions conditions;
  for (int i = 0; i < std::min(static_cast<int>(texts.size()), model.columnCount()); ++i) {
    const auto column = static_cast<std::size_t>(i);
    const std::string text = texts[i].toStdString();
    const auto filters = ParseColumnFilter(text, model.IsNumber(i));
    conditions.Errors.append(QString());
    if (!filters) {
      conditions.Errors.back() = QString::fromStdString(
          FormatIn(language, TextId::AtlasFieldWrong, model.Head(column).toStdString(), text));
      continue;
    }
    for (const Filter& filter : *filters) conditions.All.push_back({column, filter});
  }
  return conditions;
}

}  // namespace orrerix
