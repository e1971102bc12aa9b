// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>

#include "forms/workbench/travel/goods_search.h"
#include "forms/workbench/travel/travel_page.h"

namespace orrerix {

// Finds a commodity by its name. Lists them all with what each brings from where the player is, all
// places that sell or take the chosen one, and the way to the chosen place.
class GoodsPage : public TravelPage {
 public:
  explicit GoodsPage(const TravelParts& parts);

  void Enter() override;

  // Lists what the goods bring that are bought at a place.
  void ShowGoodsFrom(const std::string& place);

  // Lists the commodities whose name holds a text, and puts the keyboard there.
  void FindGood(const QString& text);

 private:
  void Run() override;
  void Clear() override;
  void CancelWork() override;
  void MakeNameEdit();
  QWidget* MakePlaces();
  GoodsWishes Wishes() const;
  void Show(GoodsOutcome outcome);
  void ChooseFirst();
  void ShowPlacesOfChosen();
  void ShowPlaces(GoodIndex good, std::vector<GoodOffer> offers);
  void ShowWayToChosen();

  QLineEdit* name_;
  CellTable goods_;
  ValueFilter goodFilter_;
  QTableView* goodTable_;
  QLabel* placesOf_;
  CellTable places_;
  ValueFilter placeFilter_;
  QTableView* placeTable_;
  GoodsOutcome outcome_;
  std::optional<GoodsWishes> answered_;  // what the tables are about
  std::vector<GoodOffer> offers_;        // of the chosen good
  BackgroundTask placeTask_;             // last: they refer to the others
  BackgroundTask task_;
};

}  // namespace orrerix
