// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/travel_page.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"
#include "forms/workbench/setting_keys.h"

namespace orrerix {
namespace {

constexpr int kFieldsWidth = 300;
constexpr int kTravelPageProgressWidth = 120;
constexpr int kTravelPageRowPadding = 6;
constexpr std::array kLegWidths = {110, 140, 260, 220, 60, 80, 70};

}  // namespace

TravelPage::TravelPage(TextId name, TextId find, const char* key, const TravelParts& parts)
    : WorkbenchPage(name),
      host_(parts.Host),
      choice_(parts.Choice),
      settings_(parts.Settings),
      worlds_(parts.Worlds),
      legs_(parts.Choice),
      key_(key) {
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->addWidget(MakeFields(find));
  results_ = new QVBoxLayout;
  results_->addWidget(MakeBar());
  columns->addLayout(results_, 1);
  legTable_ = MakeTable("Legs", TextId::WayPage, legs_);
  RecallWidths(*legTable_, kLegWidths);
  legTable_->horizontalHeader()->setSectionResizeMode(WayLegModel::ToColumn, QHeaderView::Stretch);
  MakeMapButtons();
}

QString TravelPage::Caption(TextId id) const {
  return CaptionIn(choice_.Current, id);
}

QWidget* TravelPage::MakeFields(TextId find) {
  auto* column = new QWidget(this);
  column->setFixedWidth(kFieldsWidth);
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  fields_ = new TravelFields(choice_, column);
  find_ = new QPushButton(Caption(find), column);
  find_->setObjectName("Find");
  cancel_ = new QPushButton(Caption(TextId::ButtonCancel), column);
  cancel_->setObjectName("Cancel");
  cancel_->setEnabled(false);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(find_);
  buttons->addWidget(cancel_);
  layout->addWidget(fields_, 1);
  layout->addLayout(buttons);
  connect(find_, &QPushButton::clicked, this, [this] { Start(); });
  connect(cancel_, &QPushButton::clicked, this, [this] {
    startsWhenRead_ = false;
    CancelWork();
    ShowDone({});
  });
  return column;
}

QWidget* TravelPage::MakeBar() {
  auto* bar = new QWidget(this);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(0, 0, 0, 0);
  state_ = new PlainLabel(bar);
  state_->setObjectName("State");
  state_->setWordWrap(true);
  state_->setMinimumHeight(state_->sizeHint().height());
  progress_ = new QProgressBar(bar);
  progress_->setObjectName("Progress");
  progress_->setRange(0, 0);  // its end is not known
  progress_->setFixedWidth(kTravelPageProgressWidth);
  progress_->setTextVisible(false);
  progress_->hide();
  row->addWidget(state_, 1);
  row->addWidget(progress_);
  return bar;
}

QTableView* TravelPage::MakeTable(const char* name, TextId caption, QAbstractItemModel& model) {
  auto* table = new QTableView(this);
  table->setObjectName(name);
  table->setAccessibleName(Caption(caption));
  table->setModel(&model);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setAlternatingRowColors(true);
  table->setWordWrap(false);
  table->verticalHeader()->hide();
  table->verticalHeader()->setDefaultSectionSize(table->fontMetrics().height() +
                                                 kTravelPageRowPadding);
  table->horizontalHeader()->setHighlightSections(false);
  table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  return table;
}

void TravelPage::MakeMapButtons() {
  mapButtons_ = new QWidget(this);
  auto* row = new QHBoxLayout(mapButtons_);
  row->setContentsMargins(0, 0, 0, 0);
  auto* show = new QPushButton(Caption(TextId::ShowWay), mapButtons_);
  show->setObjectName("ShowWay");
  show->setEnabled(false);
  auto* hide = new QPushButton(Caption(TextId::HideWay), mapButtons_);
  hide->setObjectName("HideWay");
  auto* copy = new QPushButton(Caption(TextId::CopyCoordinates), mapButtons_);
  copy->setObjectName("CopyCoordinates");
  auto* waypoint = new QPushButton(Caption(TextId::CopyWaypoint), mapButtons_);
  waypoint->setObjectName("CopyWaypoint");
  waypoint->setToolTip(Caption(TextId::CopyWaypointTip));
  for (QPushButton* button : {show, hide, copy, waypoint}) row->addWidget(button);
  row->addStretch(1);
  connect(copy, &QPushButton::clicked, this, [this] { CopyOfChosen(&WayLegRow::Coordinates); });
  connect(waypoint, &QPushButton::clicked, this, [this] { CopyOfChosen(&WayLegRow::Waypoint); });
  connect(show, &QPushButton::clicked, this, [this] { ShowOnMap(); });
  connect(hide, &QPushButton::clicked, this, [this] { host_.HideWay(); });
  connect(&legs_, &QAbstractItemModel::modelReset, show,
          [this, show] { show->setEnabled(legs_.rowCount() > 0); });
}

void TravelPage::Enter() {
  if (!std::exchange(isInFront_, true)) fields_->Recall(settings_);
  fields_->StartAt(host_.StartPlace());
  if (!choicesAreRead_) ReadChoices();
}

void TravelPage::Leave() {
  isInFront_ = false;
  fields_->Remember(settings_);
  for (const QTableView* table : remembered_) {
    QStringList widths;
    for (int column = 0; column < table->model()->columnCount(); ++column) {
      widths.append(QString::number(table->columnWidth(column)));
    }
    settings_.setValue(WidthsKey(*table), widths.join(' '));
  }
}

QString TravelPage::WidthsKey(const QTableView& table) const {
  return QString("%1/%2/%3").arg(key_, setting_key::kWidths, table.objectName());
}

// Widths of another number of columns are those of another version.
void TravelPage::RecallWidths(QTableView& table, std::span<const int> widths) {
  remembered_.push_back(&table);
  const QStringList known = settings_.value(WidthsKey(table)).toString().split(' ');
  const bool isKnown = known.size() == table.model()->columnCount();
  for (std::size_t i = 0; i < widths.size(); ++i) {
    const auto column = static_cast<int>(i);
    const int width = isKnown ? known[column].toInt() : 0;  // 0 also of a hidden one
    table.setColumnWidth(column, width > 0 ? width : widths[i]);
  }
}

void TravelPage::Start() {
  CancelWork();
  ShowRunning();
  startsWhenRead_ = choices_.IsRunning();
  if (!startsWhenRead_) Run();
}

void TravelPage::UniverseChanged() {
  startsWhenRead_ = false;
  CancelWork();
  ShowDone({});
  Clear();
  legs_.Show({});
  choicesAreRead_ = false;
  if (isVisible()) Enter();
}

void TravelPage::ReadChoices() {
  choicesAreRead_ = true;
  choices_.Start([file = host_.UniverseFile()](
                     const BackgroundTask::IsCancelled&) { return ReadTravelChoices(file); },
                 [this](const TravelChoices& choices) {
                   fields_->Offer(choices);
                   if (std::exchange(startsWhenRead_, false)) Run();
                 });
}

TravelRequest TravelPage::Request() const {
  TravelRequest request = fields_->Request();
  request.Game = host_.GameText();
  return request;
}

void TravelPage::ShowRunning() {
  cancel_->setEnabled(true);
  progress_->show();
  state_->setText(Caption(TextId::Calculating));
}

void TravelPage::ShowDone(const QString& state) {
  cancel_->setEnabled(false);
  progress_->hide();
  state_->setText(state);
}

// Of the chosen leg's end.
void TravelPage::CopyOfChosen(QString WayLegRow::*text) {
  const QModelIndex chosen = legTable_->currentIndex();
  if (!chosen.isValid()) return;
  QApplication::clipboard()->setText(legs_.Rows()[static_cast<std::size_t>(chosen.row())].*text);
}

void TravelPage::ShowOnMap() {
  if (!host_.ShowWay(legs_.Legs())) state_->setText(Caption(TextId::WayNotOnMap));
}

}  // namespace orrerix
