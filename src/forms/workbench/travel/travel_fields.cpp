// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/travel_fields.h"

#include <QCompleter>
#include <QLabel>
#include <QRegularExpressionValidator>
#include <algorithm>
#include <set>

#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"
#include "forms/workbench/setting_keys.h"

namespace orrerix {
namespace {

constexpr int kRowsAboveAdded = 3;  // from, to, ship
constexpr int kFactionRows = 90;    // least height of the list, pixels
constexpr int kShortestText = 12;   // characters that a closed list has room for

QString NicknameOf(const QListWidgetItem& item) {
  return item.data(Qt::UserRole).toString();
}

QLineEdit* NumberEdit(const char* name, const QString& withoutNumber, QWidget* parent) {
  auto* edit = new QLineEdit(parent);
  edit->setObjectName(name);
  edit->setPlaceholderText(withoutNumber);
  // Up to 1,000,000,000, with which no calculation overflows.
  edit->setValidator(new QRegularExpressionValidator(QRegularExpression("[1-9][0-9]{0,8}"), edit));
  return edit;
}

std::optional<std::int64_t> NumberIn(const QLineEdit& edit) {
  bool isNumber = false;
  const qlonglong number = edit.text().toLongLong(&isNumber);
  return isNumber ? std::optional<std::int64_t>(number) : std::nullopt;
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
  rows_->addRow(new PlainLabel(Caption(TextId::EnemyFactions), this));
  rows_->addRow(factions_);
  avoid_ = new QLineEdit(this);
  avoid_->setObjectName("KeepAway");
  avoid_->setAccessibleName(Caption(TextId::KeepAwayFrom));
  avoid_->setPlaceholderText(Caption(TextId::CommaSeparated));
  avoid_->setToolTip(Caption(TextId::CommaSeparated));
  rows_->addRow(new PlainLabel(Caption(TextId::KeepAwayFrom), this));
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

void TravelFields::AddLoad() {
  hold_ = NumberEdit("Hold", Caption(TextId::HoldOfShip), this);
  money_ = NumberEdit("Money", Caption(TextId::MoneyWithoutLimit), this);
  Add(TextId::TravelHold, hold_);
  Add(TextId::TravelMoney, money_);
}

std::optional<std::int64_t> TravelFields::Hold() const {
  return NumberIn(*hold_);
}

std::optional<std::int64_t> TravelFields::Money() const {
  return NumberIn(*money_);
}

void TravelFields::HideTo() {
  rows_->setRowVisible(to_, false);
}

void TravelFields::Offer(const TravelChoices& choices) {
  from_->Offer(choices.Places);
  to_->Offer(choices.Places);
  const std::string ship = Ship();
  const std::vector<std::string> enemies = Enemies();
  isOffered_ = true;
  while (ship_->count() > 1) ship_->removeItem(1);
  for (const TravelChoice& item : choices.Ships) {
    ship_->addItem(item.Text, QString::fromStdString(item.Nickname));
  }
  ChooseShip(ship);
  factions_->clear();
  for (const TravelChoice& faction : choices.Factions) {
    auto* item = new QListWidgetItem(faction.Text, factions_);
    item->setData(Qt::UserRole, QString::fromStdString(faction.Nickname));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  }
  CheckEnemies(enemies);
}

std::string TravelFields::Ship() const {
  return isOffered_ ? ship_->currentData().toString().toStdString() : wantedShip_;
}

void TravelFields::ChooseShip(const std::string& nickname) {
  wantedShip_ = nickname;
  const int found = nickname.empty() ? 0 : ship_->findData(QString::fromStdString(nickname));
  ship_->setCurrentIndex(std::max(0, found));
}

std::vector<std::string> TravelFields::Enemies() const {
  if (!isOffered_) return wantedEnemies_;
  std::vector<std::string> enemies;
  for (int i = 0; i < factions_->count(); ++i) {
    const QListWidgetItem& item = *factions_->item(i);
    if (item.checkState() == Qt::Checked) enemies.push_back(NicknameOf(item).toStdString());
  }
  return enemies;
}

void TravelFields::CheckEnemies(const std::vector<std::string>& nicknames) {
  wantedEnemies_ = nicknames;
  const std::set<std::string> checked(nicknames.begin(), nicknames.end());
  for (int i = 0; i < factions_->count(); ++i) {
    QListWidgetItem& item = *factions_->item(i);
    item.setCheckState(checked.contains(NicknameOf(item).toStdString()) ? Qt::Checked
                                                                        : Qt::Unchecked);
  }
}

void TravelFields::StartAt(const std::string& place) {
  if (From() == startedAt_) from_->ShowPlace(place);
  startedAt_ = place;
}

void TravelFields::StandAt(const std::string& place) {
  from_->ShowPlace(place);
  startedAt_ = place;
}

void TravelFields::Recall(const QSettings& settings) {
  const auto text = [&](const char* key) { return settings.value(key).toString(); };
  from_->ShowPlace(settings.contains(setting_key::kFrom) ? text(setting_key::kFrom).toStdString()
                                                         : startedAt_);
  ChooseShip(text(setting_key::kShip).toStdString());
  std::vector<std::string> enemies;
  for (const QString& enemy : text(setting_key::kEnemies).split(',', Qt::SkipEmptyParts)) {
    enemies.push_back(enemy.toStdString());
  }
  CheckEnemies(enemies);
  avoid_->setText(text(setting_key::kKeepAway));
  noGates_->setChecked(settings.value(setting_key::kNoGates).toBool());
  noHoles_->setChecked(settings.value(setting_key::kNoHoles).toBool());
  noLocked_->setChecked(settings.value(setting_key::kNoLocked).toBool());
  if (hold_ == nullptr) return;
  hold_->setText(text(setting_key::kHold));
  money_->setText(text(setting_key::kMoney));
}

void TravelFields::Remember(QSettings& settings) const {
  if (From() == startedAt_) {
    settings.remove(setting_key::kFrom);
  } else {
    settings.setValue(setting_key::kFrom, QString::fromStdString(From()));
  }
  settings.setValue(setting_key::kShip, QString::fromStdString(Ship()));
  QStringList enemies;
  for (const std::string& enemy : Enemies()) enemies.append(QString::fromStdString(enemy));
  settings.setValue(setting_key::kEnemies, enemies.join(','));
  settings.setValue(setting_key::kKeepAway, avoid_->text());
  settings.setValue(setting_key::kNoGates, noGates_->isChecked());
  settings.setValue(setting_key::kNoHoles, noHoles_->isChecked());
  settings.setValue(setting_key::kNoLocked, noLocked_->isChecked());
  if (hold_ == nullptr) return;
  settings.setValue(setting_key::kHold, hold_->text());
  settings.setValue(setting_key::kMoney, money_->text());
}

TravelRequest TravelFields::Request() const {
  TravelRequest request;
  if (const std::string ship = Ship(); !ship.empty()) request.Ship = ship;
  for (const QString& name : avoid_->text().split(',')) {
    if (!name.trimmed().isEmpty()) request.Wishes.Avoid.push_back(name.trimmed().toStdString());
  }
  request.Wishes.AvoidFactions = Enemies();
  request.Wishes.NoGates = noGates_->isChecked();
  request.Wishes.NoHoles = noHoles_->isChecked();
  request.Wishes.NoLocked = noLocked_->isChecked();
  return request;
}

}  // namespace orrerix
