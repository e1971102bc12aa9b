// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

#include "forms/workbench/travel/trade_model.h"
#include "forms/workbench/travel/travel_page.h"

namespace orrerix {

// Looks for the trades that pay most, and lists them with the ways of the chosen one.
class TradesPage : public TravelPage {
 public:
  explicit TradesPage(const TravelParts& parts);

  void Enter() override;
  void Leave() override;

  // Looks for the trades from a place to any other.
  void ShowTradesFrom(const std::string& place);

 private:
  void Run() override;
  void Clear() override;
  void CancelWork() override;
  void AddFields();
  void MakeTradeTable();
  TradeWishes Wishes() const;
  void Show(TradeOutcome outcome);
  void ShowChosen();

  QSpinBox* hops_;
  QCheckBox* loop_;
  QComboBox* sorting_;
  QTableView* table_;
  TradeModel trades_;
  ValueFilter filter_;
  TradeOutcome outcome_;
  bool isRecalled_ = false;
  BackgroundTask legTask_;  // last: they refer to the others
  BackgroundTask jumpTask_;
  BackgroundTask task_;
};

}  // namespace orrerix
