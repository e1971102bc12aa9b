// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>

#include "forms/workbench/trade_model.h"
#include "forms/workbench/travel_page.h"

namespace orrerix {

// Looks for the trades that pay most, and lists them with the ways of the chosen one.
class TradesPage : public TravelPage {
 public:
  // Both outlive the page.
  TradesPage(WorkbenchHost& host, const LanguageChoice& choice);

  void Start() override;

  // Looks for the trades from a place to any other.
  void ShowTradesFrom(const std::string& place);

 private:
  void Clear() override;
  void CancelWork() override;
  void AddFields();
  void MakeTradeTable();
  TradeWishes Wishes() const;
  void Show(TradeOutcome outcome);
  void ShowChosen();

  QLineEdit* hold_;
  QLineEdit* money_;
  QSpinBox* hops_;
  QCheckBox* loop_;
  QComboBox* sorting_;
  QTableView* table_;
  TradeModel trades_;
  TradeFilter filter_;
  TradeOutcome outcome_;
  BackgroundTask legTask_;  // last: they refer to the others
  BackgroundTask task_;
};

}  // namespace orrerix
