// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_fields.h"

#include "forms/controls/captions.h"
#include "forms/workbench/setting_keys.h"
#include "shell/language_texts.h"

namespace orrerix {
namespace {

constexpr const char* kRangeHint = "1..9";

}  // namespace

AtlasFields::AtlasFields(FilterHeader& header, const AtlasModel& model, QSettings& settings,
                         const LanguageChoice& choice)
    : header_(header), model_(model), settings_(settings), choice_(choice) {}

QString AtlasFields::Key() const {
  return QString("atlas/%1/%2")
      .arg(QString::fromStdString(model_.Table()->Id), setting_key::kAtlasFields);
}

QString AtlasFields::IdOf(int column) const {
  return QString::fromStdString(model_.Table()->Columns[static_cast<std::size_t>(column)].Id);
}

void AtlasFields::Offer() {
  std::vector<FilterHeader::Field> fields;
  for (int column = 0; column < model_.columnCount(); ++column) {
    const std::string head = model_.Head(static_cast<std::size_t>(column)).toStdString();
    fields.push_back({"Field_" + IdOf(column),
                      QString::fromStdString(FormatIn(choice_.Current, TextId::AtlasField, head)),
                      CaptionIn(choice_.Current, TextId::AtlasFieldTip),
                      model_.IsNumber(column) ? QString(kRangeHint) : QString()});
  }
  header_.SetFields(fields);
}

void AtlasFields::Recall() {
  QStringList texts(model_.columnCount());
  for (const QString& entry : settings_.value(Key()).toStringList()) {
    const auto column = model_.Table()->Find(entry.section('=', 0, 0).toStdString());
    if (column) texts[static_cast<int>(*column)] = entry.section('=', 1);
  }
  header_.SetTexts(texts);
}

// "price=10..50"
void AtlasFields::Remember() const {
  QStringList filled;
  const QStringList texts = header_.Texts();
  for (int column = 0; column < static_cast<int>(texts.size()); ++column) {
    if (!texts[column].isEmpty()) filled.append(IdOf(column) + "=" + texts[column]);
  }
  settings_.setValue(Key(), filled);
}

AtlasFieldConditions AtlasFields::Read() {
  AtlasFieldConditions conditions = ParseFields(model_, header_.Texts(), choice_.Current);
  for (int column = 0; column < static_cast<int>(conditions.Errors.size()); ++column) {
    header_.MarkWrong(column, conditions.Errors[column]);
  }
  return conditions;
}

}  // namespace orrerix
