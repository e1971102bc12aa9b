// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>

#include "forms/workbench/travel/travel_page.h"
#include "forms/workbench/travel/way_search.h"

namespace orrerix {

// Looks for the fastest way between two places, or says why there is none.
class WayPage : public TravelPage {
 public:
  explicit WayPage(const TravelParts& parts);

  // Looks for the way to a place from where the player is.
  void ShowWayTo(const std::string& place);

 private:
  void Run() override;
  void Clear() override;
  void CancelWork() override;
  void Show(WayOutcome outcome);

  QPlainTextEdit* reasons_;
  BackgroundTask task_;  // last: it refers to the others
};

}  // namespace orrerix
