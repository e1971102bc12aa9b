// SPDX-License-Identifier: MIT
#include "forms/workbench/travel_fields.h"

#include <QCompleter>
#include <QLabel>
#include <set>

#include "forms/controls/captions.h"

namespace orrerix {
namespace {

constexpr int kRowsAboveAdded = 3;  // from, to, ship
constexpr int kFactionRows = 90;    // least height of the list, pixels
constexpr int kShortestText = 12;   // characters that a closed list has room for

QString NicknameOf(const QListWidgetItem& item) {
  return item.data(Qt::UserRole).toString();
}

}  // namespace

PlaceBox::PlaceBox(const char* name, const QString& caption, QWidget* parent) : QComboBox(parent) {
  setObjectName(name);
  setAccessibleName(caption);
  setEditable(true);
  setInsertPolicy(NoInsert);
  setMinimumContentsLength(kShortestText);
  setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
  completer()->setCompletionMode(QCompleter::PopupCompletion);
  completer()->setFilterMode(Qt::MatchContains);
  // A name is longer than the field: its beginning counts.
  connect(
      this, &QComboBox::currentIndexChanged, this, [this] { lineEdit()->setCursorPosition(0); },
      Qt::QueuedConnection);
}

void PlaceBox::Offer(const std::vector<TravelChoice>& places) {
  const std::string before = Place();
  clear();
  for (const TravelChoice& place : places) {
    addItem(place.Text, QString::fromStdString(place.Nickname));
  }
  ShowPlace(before);
}

void PlaceBox::ShowPlace(const std::string& nickname) {
  const QString text = QString::fromStdString(nickname);
  const int found = text.isEmpty() ? -1 : findData(text, Qt::UserRole, Qt::MatchFixedString);
  setCurrentIndex(found);
  if (found < 0) setEditText(text);
  lineEdit()->setCursorPosition(0);
}

std::string PlaceBox::Place() const {
  const QString text = currentText().trimmed();
  const int found = findText(text, Qt::MatchFixedString);
  return (found < 0 ? text : itemData(found).toString()).toStdString();
}

TravelFields::TravelFields(const LanguageChoice& choice, QWidget* parent)
    : QWidget(parent), choice_(choice), rows_(new QFormLayout(this)) {
  rows_->setContentsMargins(0, 0, 8, 0);
  rows_->setRowWrapPolicy(QFormLayout::WrapLongRows);
  rows_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  from_ = new PlaceBox("From", Caption(TextId::TravelFrom), this);
  to_ = new PlaceBox("To", Caption(TextId::TravelTo), this);
  ship_ = new QComboBox(this);
  ship_->setObjectName("Ship");
  ship_->setAccessibleName(Caption(TextId::TravelShip));
  ship_->setMinimumContentsLength(kShortestText);
  ship_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  ship_->addItem(Caption(TextId::AnyShip));
  rows_->addRow(Caption(TextId::TravelFrom), from_);
  rows_->addRow(Caption(TextId::TravelTo), to_);
  rows_->addRow(Caption(TextId::TravelShip), ship_);
  factions_ = new QListWidget(this);
  factions_->setObjectName("EnemyFactions");
  factions_->setAccessibleName(Caption(TextId::EnemyFactions));
  factions_->setMinimumHeight(kFactionRows);
  rows_->addRow(new QLabel(Caption(TextId::EnemyFactions), this));
  rows_->addRow(factions_);
  avoid_ = new QLineEdit(this);
  avoid_->setObjectName("KeepAway");
  avoid_->setAccessibleName(Caption(TextId::KeepAwayFrom));
  avoid_->setPlaceholderText(Caption(TextId::CommaSeparated));
  avoid_->setToolTip(Caption(TextId::CommaSeparated));
  rows_->addRow(new QLabel(Caption(TextId::KeepAwayFrom), this));
  rows_->addRow(avoid_);
  noGates_ = MakeSwitch(TextId::NoGates, "NoGates");
  noHoles_ = MakeSwitch(TextId::NoHoles, "NoHoles");
  noLocked_ = MakeSwitch(TextId::NoLocked, "NoLocked");
}

QString TravelFields::Caption(TextId id) const {
  return CaptionIn(choice_.Current, id);
}

QCheckBox* TravelFields::MakeSwitch(TextId caption, const char* name) {
  auto* box = new QCheckBox(Caption(caption), this);
  box->setObjectName(name);
  rows_->addRow(box);
  return box;
}

void TravelFields::Add(TextId caption, QWidget* field) {
  field->setAccessibleName(Caption(caption));
  rows_->insertRow(kRowsAboveAdded + added_++, Caption(caption), field);
}

void TravelFields::Add(QWidget* field) {
  rows_->insertRow(kRowsAboveAdded + added_++, field);
}

void TravelFields::AllowAnyPlace() {
  for (PlaceBox* box : {from_, to_}) {
    box->lineEdit()->setPlaceholderText(Caption(TextId::AnyPlace));
  }
}

void TravelFields::Offer(const TravelChoices& choices) {
  from_->Offer(choices.Places);
  to_->Offer(choices.Places);
  const QString ship = ship_->currentData().toString();
  while (ship_->count() > 1) ship_->removeItem(1);
  for (const TravelChoice& item : choices.Ships) {
    ship_->addItem(item.Text, QString::fromStdString(item.Nickname));
  }
  ship_->setCurrentIndex(ship.isEmpty() ? 0 : std::max(0, ship_->findData(ship)));
  const std::vector<std::string> enemies = Request().Wishes.AvoidFactions;
  const std::set<std::string> checked(enemies.begin(), enemies.end());
  factions_->clear();
  for (const TravelChoice& faction : choices.Factions) {
    auto* item = new QListWidgetItem(faction.Text, factions_);
    item->setData(Qt::UserRole, QString::fromStdString(faction.Nickname));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(checked.contains(faction.Nickname) ? Qt::Checked : Qt::Unchecked);
  }
}

void TravelFields::StartAt(const std::string& place) {
  if (From() == startedAt_) from_->ShowPlace(place);
  startedAt_ = place;
}

TravelRequest TravelFields::Request() const {
  TravelRequest request;
  const QString ship = ship_->currentData().toString();
  if (!ship.isEmpty()) request.Ship = ship.toStdString();
  for (const QString& name : avoid_->text().split(',')) {
    if (!name.trimmed().isEmpty()) request.Wishes.Avoid.push_back(name.trimmed().toStdString());
  }
  for (int i = 0; i < factions_->count(); ++i) {
    const QListWidgetItem& item = *factions_->item(i);
    if (item.checkState() != Qt::Checked) continue;
    request.Wishes.AvoidFactions.push_back(NicknameOf(item).toStdString());
  }
  request.Wishes.NoGates = noGates_->isChecked();
  request.Wishes.NoHoles = noHoles_->isChecked();
  request.Wishes.NoLocked = noLocked_->isChecked();
  return request;
}

}  // namespace orrerix
