// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "album.h"
#include "forms/orrerix_main.h"

namespace orrerix {

// Shows the tools for commodities, trades and ways, and what they draw on the map.
class TravelTour {
 public:
  using Waiting = std::function<void(const char* what, const std::function<bool()>& isSo)>;
  using TakingMain = std::function<void(const QString& name)>;

  // `wait` waits for a state, `takeMain` takes a picture of the main form.
  TravelTour(OrrerixMain& main, Album& album, Waiting wait, TakingMain takeMain)
      : main_(main), album_(album), wait_(std::move(wait)), takeMain_(std::move(takeMain)) {}

  // Leaves the window of the tools closed. Throws std::runtime_error if something does not come.
  void Go();

 private:
  void TakeCommodities();
  void TakeTrades();
  void TakeLoop();
  void TakeNoWay();
  QWidget& Window() const;
  QWidget& Page(TextId name);
  void Find(QWidget& page);
  void ChooseFarthest(QWidget& page);
  void ShowWay(QWidget& page, const QString& name);

  OrrerixMain& main_;
  Album& album_;
  Waiting wait_;
  TakingMain takeMain_;
};

}  // namespace orrerix
