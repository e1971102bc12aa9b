// SPDX-License-Identifier: MIT
#include "forms/workbench/trades_page.h"

#include <QHeaderView>
#include <QRegularExpressionValidator>
#include <QSplitter>
#include <QVBoxLayout>
#include <array>

#include "forms/controls/captions.h"

namespace orrerix {
namespace {

constexpr int kMostHops = 6;
constexpr std::array kWidths = {155, 155, 190, 75, 75, 65, 65};

constexpr std::array kSortings = {std::pair(TextId::SortMinute, PlanSorting::Minute),
                                  std::pair(TextId::SortProfit, PlanSorting::Profit),
                                  std::pair(TextId::SortPercent, PlanSorting::Percent),
                                  std::pair(TextId::SortRoundTrip, PlanSorting::Loop)};

QLineEdit* NumberEdit(const char* name, const QString& withoutNumber, QWidget* parent) {
  auto* edit = new QLineEdit(parent);
  edit->setObjectName(name);
  edit->setPlaceholderText(withoutNumber);
  // Up to a thousand million, which every calculation bears.
  edit->setValidator(new QRegularExpressionValidator(QRegularExpression("[1-9][0-9]{0,8}"), edit));
  return edit;
}

std::optional<std::int64_t> NumberIn(const QLineEdit& edit) {
  bool isNumber = false;
  const qlonglong number = edit.text().toLongLong(&isNumber);
  return isNumber ? std::optional<std::int64_t>(number) : std::nullopt;
}

}  // namespace

TradesPage::TradesPage(WorkbenchHost& host, const LanguageChoice& choice)
    : TravelPage(TextId::TradesPage, TextId::FindTrades, host, choice),
      trades_(choice),
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
  hold_ = NumberEdit("Hold", Caption(TextId::HoldOfShip), this);
  money_ = NumberEdit("Money", Caption(TextId::MoneyWithoutLimit), this);
  hops_ = new QSpinBox(this);
  hops_->setObjectName("Hops");
  hops_->setRange(1, kMostHops);
  loop_ = new QCheckBox(Caption(TextId::TradeLoop), this);
  loop_->setObjectName("Loop");
  sorting_ = new QComboBox(this);
  sorting_->setObjectName("Sorting");
  for (const auto& [caption, sorting] : kSortings) sorting_->addItem(Caption(caption));
  fields_->Add(TextId::TravelHold, hold_);
  fields_->Add(TextId::TravelMoney, money_);
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
  for (std::size_t column = 0; column < kWidths.size(); ++column) {
    table_->setColumnWidth(static_cast<int>(column), kWidths[column]);
  }
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { ShowChosen(); });
}

TradeWishes TradesPage::Wishes() const {
  TradeWishes wishes;
  wishes.Travel = Request();
  wishes.Hold = NumberIn(*hold_);
  wishes.Credits = NumberIn(*money_);
  wishes.From = fields_->From();
  wishes.To = fields_->To();
  wishes.Hops = hops_->value();
  wishes.Loop = loop_->isChecked();
  wishes.Sorting = kSortings[static_cast<std::size_t>(sorting_->currentIndex())].second;
  return wishes;
}

void TradesPage::ShowTradesFrom(const std::string& place) {
  fields_->ShowFrom(place);
  fields_->ShowTo({});
  Start();
}

void TradesPage::Start() {
  CancelWork();
  ShowRunning();
  task_.Start(
      [file = host_.UniverseFile(), wishes = Wishes(),
       language = choice_.Current](const BackgroundTask::IsCancelled& isCancelled) {
        return SearchTrades(file, wishes, language, isCancelled);
      },
      [this](TradeOutcome outcome) { Show(std::move(outcome)); });
}

// The order of the answer, until a column is clicked.
void TradesPage::Show(TradeOutcome outcome) {
  legTask_.Cancel();
  outcome_ = std::move(outcome);
  legs_.Show({});
  table_->horizontalHeader()->setSortIndicator(-1, Qt::DescendingOrder);
  trades_.Show(outcome_);
  ShowDone(outcome_.World
               ? QString::fromStdString(FormatIn(choice_.Current, TextId::TradeSums,
                                                 outcome_.Answer.Count, trades_.rowCount()))
               : outcome_.Error);
  if (filter_.rowCount() > 0) table_->selectRow(0);
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
  legTask_.Cancel();
}

}  // namespace orrerix
