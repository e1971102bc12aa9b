// SPDX-License-Identifier: MIT
// The work of the way page, done beside the event loop.
#pragma once

#include <QString>
#include <filesystem>
#include <string>
#include <vector>

#include "forms/workbench/travel/way_leg_model.h"
#include "routes/travel.h"

namespace orrerix {

struct WayOutcome {
  std::vector<WayLegRow> Legs;
  QString Sums;     // or why there is no answer
  QString Reasons;  // why there is no way, line by line; empty if there is one
};

// The fastest way between two places of a universe file, or why there is none.
WayOutcome SearchWay(const std::filesystem::path& universe, const TravelRequest& request,
                     const std::string& from, const std::string& to, Language language);

}  // namespace orrerix
