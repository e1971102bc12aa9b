// SPDX-License-Identifier: MIT
#include "forms/workbench/travel/goods_page.h"

#include <QHeaderView>
#include <QSplitter>
#include <QVBoxLayout>
#include <array>

#include "forms/controls/captions.h"
#include "forms/controls/plain_label.h"

namespace orrerix {
namespace {

constexpr std::array kGoodWidths = {125, 135, 135, 58, 58, 66, 54, 60, 76};
constexpr std::array kPlaceWidths = {220, 140, 120, 70, 70, 56, 65};

}  // namespace

GoodsPage::GoodsPage(const TravelParts& parts)
    : TravelPage(TextId::GoodsPage, TextId::FindGoods, "commodities", parts),
      goods_(parts.Choice, GoodHeads(), kGoodFirstNumber),
      goodFilter_(goods_),
      places_(parts.Choice, OfferHeads(), kOfferFirstNumber),
      placeFilter_(places_) {
  fields_->HideTo();
  fields_->AllowAnyPlace();
  fields_->AddLoad();
  MakeNameEdit();
  goodTable_ = MakeTable("Commodities", TextId::GoodsPage, goodFilter_);
  goodTable_->setSortingEnabled(true);
  goodTable_->horizontalHeader()->setStretchLastSection(true);
  goodTable_->sortByColumn(kGoodMinuteColumn, Qt::DescendingOrder);
  RecallWidths(*goodTable_, kGoodWidths);
  auto* split = new QSplitter(Qt::Vertical, this);
  split->addWidget(goodTable_);
  split->addWidget(MakePlaces());
  split->addWidget(legTable_);
  legTable_->setColumnHidden(WayLegModel::GoodsColumn, true);
  for (const auto& [pane, share] : {std::pair(0, 3), std::pair(1, 3), std::pair(2, 2)}) {
    split->setStretchFactor(pane, share);
  }
  results_->addWidget(name_);
  results_->addWidget(split, 1);
  results_->addWidget(mapButtons_);
  connect(goodTable_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { ShowPlacesOfChosen(); });
  connect(placeTable_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this] { ShowWayToChosen(); });
}

void GoodsPage::MakeNameEdit() {
  name_ = new QLineEdit(this);
  name_->setObjectName("FindGood");
  name_->setPlaceholderText(Caption(TextId::FindGood));
  name_->setAccessibleName(Caption(TextId::FindGood));
  name_->setClearButtonEnabled(true);
  goodFilter_.setFilterKeyColumn(0);
  connect(name_, &QLineEdit::textChanged, this, [this](const QString& text) {
    goodFilter_.setFilterFixedString(text);
    if (!goodTable_->currentIndex().isValid()) ChooseFirst();
  });
  connect(name_, &QLineEdit::returnPressed, this, [this] { goodTable_->setFocus(); });
}

QWidget* GoodsPage::MakePlaces() {
  auto* pane = new QWidget(this);
  auto* layout = new QVBoxLayout(pane);
  layout->setContentsMargins(0, 0, 0, 0);
  placesOf_ = new PlainLabel(Caption(TextId::PlacesOfGood), pane);
  placesOf_->setObjectName("PlacesOf");
  placeTable_ = MakeTable("Places", TextId::PlacesOfGood, placeFilter_);
  placeTable_->setSortingEnabled(true);
  placeTable_->horizontalHeader()->setStretchLastSection(true);
  placeTable_->horizontalHeader()->setSortIndicator(-1, Qt::DescendingOrder);
  RecallWidths(*placeTable_, kPlaceWidths);
  layout->addWidget(placesOf_);
  layout->addWidget(placeTable_, 1);
  return pane;
}

GoodsWishes GoodsPage::Wishes() const {
  return {Request(), fields_->Hold(), fields_->Money(), fields_->From()};
}

void GoodsPage::Enter() {
  TravelPage::Enter();
  if (!answered_ || *answered_ != Wishes()) Start();
}

void GoodsPage::ShowGoodsFrom(const std::string& place) {
  fields_->StandAt(place);
  name_->clear();
  goodTable_->setCurrentIndex({});  // so that the best one is chosen
  Start();
}

void GoodsPage::FindGood(const QString& text) {
  name_->setText(text);
  name_->selectAll();
  name_->setFocus();
}

void GoodsPage::Run() {
  const GoodsWishes wishes = Wishes();
  answered_ = wishes;
  task_.Start(
      [&worlds = worlds_, file = host_.UniverseFile(), wishes,
       language = choice_.Current](const BackgroundTask::IsCancelled& isCancelled) {
        return SearchGoods(worlds, file, wishes, language, isCancelled);
      },
      [this](GoodsOutcome outcome) { Show(std::move(outcome)); });
}

// The chosen commodity stays chosen.
void GoodsPage::Show(GoodsOutcome outcome) {
  placeTask_.Cancel();
  const QString chosen = goodTable_->currentIndex().siblingAtColumn(0).data().toString();
  outcome_ = std::move(outcome);
  goods_.Show(outcome_.World ? RowsOf(outcome_, choice_.Current)
                             : std::vector<std::vector<Cell>>());
  ShowDone(outcome_.World
               ? QString::fromStdString(FormatIn(choice_.Current, TextId::GoodSums,
                                                 goods_.rowCount(), outcome_.CountOfTrades()))
               : outcome_.Error);
  const QModelIndexList same =
      goodFilter_.match(goodFilter_.index(0, 0), Qt::DisplayRole, chosen, 1, Qt::MatchExactly);
  same.isEmpty() ? ChooseFirst() : goodTable_->selectRow(same.front().row());
}

void GoodsPage::ChooseFirst() {
  goodFilter_.rowCount() > 0 ? goodTable_->selectRow(0) : ShowPlacesOfChosen();
}

void GoodsPage::ShowPlacesOfChosen() {
  const QModelIndex chosen = goodFilter_.mapToSource(goodTable_->currentIndex());
  if (!chosen.isValid() || !outcome_.World) {
    placeTask_.Cancel();
    return ShowPlaces(0, {});
  }
  const auto good = static_cast<GoodIndex>(chosen.row());
  placeTask_.Start(
      [world = outcome_.World, start = outcome_.Start,
       good](const BackgroundTask::IsCancelled& isCancelled) {
        return OffersOf(world->Market, world->Travel, good, start, [&] { return !isCancelled(); });
      },
      [this, good](std::vector<GoodOffer> offers) { ShowPlaces(good, std::move(offers)); });
}

void GoodsPage::ShowPlaces(GoodIndex good, std::vector<GoodOffer> offers) {
  offers_ = std::move(offers);
  placeTable_->horizontalHeader()->setSortIndicator(-1, Qt::DescendingOrder);
  places_.Show(offers_.empty() ? std::vector<std::vector<Cell>>()
                               : RowsOf(outcome_, good, offers_, choice_.Current));
  const QString name = offers_.empty() ? QString() : NameOf(outcome_.World->Market.Goods[good]);
  placesOf_->setText(name.isEmpty() ? Caption(TextId::PlacesOfGood)
                                    : name + ": " + Caption(TextId::PlacesOfGood));
  if (offers_.empty()) return legs_.Show({});
  placeTable_->selectRow(0);
}

// Its end is what coordinates are copied of.
void GoodsPage::ShowWayToChosen() {
  const QModelIndex chosen = placeFilter_.mapToSource(placeTable_->currentIndex());
  if (!chosen.isValid()) return legs_.Show({});
  const auto& way = offers_[static_cast<std::size_t>(chosen.row())].WayThere;
  legs_.Show(way ? RowsOf(outcome_.World->Travel, *way) : std::vector<WayLegRow>());
  if (legs_.rowCount() > 0) legTable_->selectRow(legs_.rowCount() - 1);
}

void GoodsPage::Clear() {
  answered_.reset();
  outcome_ = {};
  goods_.Show({});
  ShowPlaces(0, {});
}

void GoodsPage::CancelWork() {
  task_.Cancel();
  placeTask_.Cancel();
}

}  // namespace orrerix
