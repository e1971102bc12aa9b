// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/trades_page.h"

#include <QHeaderView>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

#include "forms/controls/captions.h"
#include "forms/workbench/setting_keys.h"

namespace orrerix {
namespace {

constexpr int kMostHops = 6;
constexpr std::array kWidths = {128, 128, 172, 64, 72, 56, 50, 56};

constexpr std::array kSortings = {std::pair(TextId::SortMinute, PlanSorting::Minute),
                                  std::pair(TextId::SortProfit, PlanSorting::Profit),
                                  std::pair(TextId::SortPercent, PlanSorting::Percent),
                                  std::pair(TextId::SortRoundTrip, PlanSorting::Loop)};

}  // namespace

TradesPage::TradesPage(const TravelParts& parts)
    : TravelPage(TextId::TradesPage, TextId::FindTrades, "trades", parts),
      trades_(parts.Choice),
      filter_(trades_) {
  AddFields();
  auto* filter = new QLineEdit(this);
  filter->setObjectName("Filter");
  filter->setPlaceholderText(Caption(TextId::FilterText));
  filter->setAccessibleName(Caption(TextId::FilterText));
  filter->setClearButtonEnabled(true);
  connect(filter, &QLineEdit::textChanged, &filter_, &QSortFilterProxyModel::setFilterFixedString);
  MakeTradeTable();
  auto* split = new QSplitter(Qt::Vertical, this);
  split->addWidget(table_);
  split->addWidget(legTable_);
  split->setStretchFactor(0, 3);
  split->setStretchFactor(1, 2);
  results_->addWidget(filter);
  results_->addWidget(split, 1);
  results_->addWidget(mapButtons_);
}

void TradesPage::AddFields() {
  hops_ = new QSpinBox(this);
  hops_->setObjectName("Hops");
  hops_->setRange(1, kMostHops);
  loop_ = new QCheckBox(Caption(TextId::TradeLoop), this);
  loop_->setObjectName("Loop");
  sorting_ = new QComboBox(this);
  sorting_->setObjectName("Sorting");
  for (const auto& [caption, sorting] : kSortings) sorting_->addItem(Caption(caption));
  fields_->AddLoad();
  fields_->Add(TextId::TradeHops, hops_);
  fields_->Add(loop_);
  fields_->Add(TextId::SortedBy, sorting_);
  fields_->AllowAnyPlace();
  // A way back to the start has two legs or more, and ends where it starts.
  connect(loop_, &QCheckBox::toggled, this, [this](bool on) {
    hops_->setMinimum(on ? 2 : 1);
    fields_->EnableTo(!on);
  });
}

void TradesPage::MakeTradeTable() {
  table_ = MakeTable("Trades", TextId::TradesPage, filter_);
  table_->setSortingEnabled(true);
  table_->horizontalHeader()->setStretchLastSection(true);
  table_->horizontalHeader()->setSortIndicator(-1, Qt::DescendingOrder);
  RecallWidths(*table_, kWidths);
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { ShowChosen(); });
}

TradeWishes TradesPage::Wishes() const {
  TradeWishes wishes;
  wishes.Travel = Request();
  wishes.Hold = fields_->Hold();
  wishes.Credits = fields_->Money();
  wishes.From = fields_->From();
  wishes.To = fields_->To();
  wishes.Hops = hops_->value();
  wishes.Loop = loop_->isChecked();
  wishes.Sorting = kSortings[static_cast<std::size_t>(sorting_->currentIndex())].second;
  return wishes;
}

// The page's own fields are restored once, the shared ones whenever the page is entered.
void TradesPage::Enter() {
  TravelPage::Enter();
  if (std::exchange(isRecalled_, true)) return;
  loop_->setChecked(settings_.value(setting_key::kLoop).toBool());
  hops_->setValue(settings_.value(setting_key::kHops, 1).toInt());
  sorting_->setCurrentIndex(
      std::clamp(settings_.value(setting_key::kSorting).toInt(), 0, sorting_->count() - 1));
}

void TradesPage::Leave() {
  TravelPage::Leave();
  settings_.setValue(setting_key::kLoop, loop_->isChecked());
  settings_.setValue(setting_key::kHops, hops_->value());
  settings_.setValue(setting_key::kSorting, sorting_->currentIndex());
}

void TradesPage::ShowTradesFrom(const std::string& place) {
  fields_->StandAt(place);
  fields_->ShowTo({});
  Start();
}

void TradesPage::Run() {
  task_.Start(
      [&worlds = worlds_, file = host_.UniverseFile(), wishes = Wishes(),
       language = choice_.Current](const BackgroundTask::IsCancelled& isCancelled) {
        return SearchTrades(worlds, file, wishes, language, isCancelled);
      },
      [this](TradeOutcome outcome) { Show(std::move(outcome)); });
}

// The order of the answer, until a column is clicked.
void TradesPage::Show(TradeOutcome outcome) {
  legTask_.Cancel();
  jumpTask_.Cancel();
  outcome_ = std::move(outcome);
  legs_.Show({});
  table_->horizontalHeader()->setSortIndicator(-1, Qt::DescendingOrder);
  trades_.Show(outcome_);
  ShowDone(outcome_.World
               ? QString::fromStdString(FormatIn(choice_.Current, TextId::TradeSums,
                                                 outcome_.Answer.Count, trades_.rowCount()))
               : outcome_.Error);
  if (filter_.rowCount() == 0) return;
  table_->selectRow(0);
  jumpTask_.Start(
      [outcome = outcome_](const BackgroundTask::IsCancelled& isCancelled) {
        return JumpsOf(outcome, isCancelled);
      },
      [this](const std::vector<int>& jumps) { trades_.ShowJumps(jumps); });
}

void TradesPage::ShowChosen() {
  const QModelIndex chosen = filter_.mapToSource(table_->currentIndex());
  if (!chosen.isValid()) return legs_.Show({});
  legTask_.Start([world = outcome_.World, plan = trades_.PlanAt(chosen.row())](
                     const BackgroundTask::IsCancelled&) { return LegsOf(*world, plan); },
                 [this](std::vector<WayLegRow> rows) { legs_.Show(std::move(rows)); });
}

void TradesPage::Clear() {
  outcome_ = {};
  trades_.Show(outcome_);
}

void TradesPage::CancelWork() {
  task_.Cancel();
  jumpTask_.Cancel();
  legTask_.Cancel();
}

}  // namespace orrerix
