// SPDX-License-Identifier: MIT
#include "forms/workbench/atlas/atlas_details.h"

#include <QSplitter>
#include <QVBoxLayout>
#include <optional>

#include "forms/controls/captions.h"
#include "forms/controls/locale_separators.h"
#include "forms/controls/plain_label.h"
#include "forms/workbench/atlas/atlas_captions.h"
#include "forms/workbench/atlas/atlas_model.h"
#include "forms/workbench/silent_boxes.h"
#include "info/texts/info_text.h"

namespace orrerix {
namespace {

constexpr int kDockRole = Qt::UserRole;

// What the info texts of a table's rows are about; nothing where the game has none.
std::optional<InfoType> InfoTypeOf(const std::string& table) {
  if (table == "ships") return InfoType::Ship;
  if (table == "factions") return InfoType::Group;
  if (table == "bases" || table == "systems" || table == "bribes") return std::nullopt;
  return InfoType::Equipment;
}

QString FieldsOf(const AtlasContent::Table& table, std::size_t row, Language language) {
  QStringList lines;
  for (std::size_t i = 0; i < table.About->Columns.size(); ++i) {
    const Value& value = table.Rows.Row(row)[i];
    if (value.IsNull()) continue;
    lines.append(AtlasCaption(language, table.About->Columns[i].Head) + ": " + CellText(value));
  }
  return lines.join('\n');
}

}  // namespace

AtlasDetails::AtlasDetails(WorkbenchHost& host, const LanguageChoice& choice)
    : host_(host), choice_(choice) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* split = new QSplitter(this);
  text_ = new QPlainTextEdit(split);
  text_->setObjectName("AtlasText");
  text_->setAccessibleName(CaptionIn(choice.Current, TextId::AtlasDetails));
  text_->setReadOnly(true);
  text_->setTabChangesFocus(true);
  auto* pane = new QWidget(split);
  auto* column = new QVBoxLayout(pane);
  column->setContentsMargins(0, 0, 0, 0);
  auto* label = new PlainLabel(CaptionIn(choice.Current, TextId::AtlasPlaces), pane);
  places_ = new QListWidget(pane);
  places_->setObjectName("AtlasPlaces");
  places_->setAccessibleName(label->text());
  show_ = new QPushButton(CaptionIn(choice.Current, TextId::ShowOnMap), pane);
  show_->setObjectName("ShowOnMap");
  column->addWidget(label);
  column->addWidget(places_, 1);
  column->addWidget(show_, 0, Qt::AlignLeft);
  split->setStretchFactor(0, 3);
  split->setStretchFactor(1, 2);
  layout->addWidget(split);
  connect(places_, &QListWidget::itemActivated, this, [this] { ShowOnMap(); });
  connect(show_, &QPushButton::clicked, this, [this] { ShowOnMap(); });
  Clear();
}

void AtlasDetails::Clear() {
  text_->clear();
  places_->clear();
  show_->setEnabled(false);
}

void AtlasDetails::Show(const AtlasContent& content, const AtlasContent::Table& table,
                        std::size_t row) {
  text_->setPlainText(TextOf(table, row));
  places_->clear();
  for (const std::size_t base : table.Places[row]) {
    const AtlasPlace& place = content.Places[base];
    auto* item = new QListWidgetItem(place.Text, places_);
    item->setData(kDockRole, QString::fromStdString(place.Dock));
  }
  if (places_->count() > 0) places_->setCurrentRow(0);
  show_->setEnabled(places_->count() > 0);
}

// Where the game says nothing, the fields of the row one below the other.
QString AtlasDetails::TextOf(const AtlasContent::Table& table, std::size_t row) {
  const auto nickname = table.About->Find("nickname");
  QString text;
  if (nickname) text = InfoText(table.About->Id, table.Rows.Row(row)[*nickname].Text());
  return text.isEmpty() ? FieldsOf(table, row, choice_.Current) : text;
}

// A line that cannot be written is left out without a question.
QString AtlasDetails::InfoText(const std::string& table, const std::string& nickname) {
  const auto type = InfoTypeOf(table);
  if (!type) return {};
  SilentBoxes boxes;
  ErrorLog log(boxes, {});
  Routine routine(log, "AtlasDetails.InfoText");
  std::string text;
  routine.Run([&] {
    Universe shown = host_.OpenUniverse(routine);
    Universe universe{log, shown.DB};
    FixedLanguage texts(choice_.Current);
    text = GetInfoTextType(universe, {texts, LocaleSigns()}, nickname, *type);
  });
  return QString::fromStdString(text).remove('\r').trimmed();
}

void AtlasDetails::ShowOnMap() {
  const QListWidgetItem* place = places_->currentItem();
  if (place == nullptr) return;
  if (host_.ShowOnMap(place->data(kDockRole).toString().toStdString())) return;
  OnState(QString::fromStdString(
      FormatIn(choice_.Current, TextId::NotOnMap, place->text().toStdString())));
}

}  // namespace orrerix
